#pragma once

#include <QImage>

/// What the screen shows: all visible windows, painted in the order in which they were opened.
QImage screenshot();

#pragma once

#include <QString>

class ClsPosSet;

/// The look of the sale screen. It grows with the screen, from 1024 x 768 on.

/// Size in pixels of the type that everything else is measured by.
int sellTypeSize(int screenWidth);
/// The screen's style sheet: its six colours from the settings, its sizes from the type.
QString sellStyleSheet(const ClsPosSet& settings, int type);

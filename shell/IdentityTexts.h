#pragma once

#include <QString>

#include "saleslib/Identification.h"

/// What is said to somebody who was refused.
QString refusalText(const Identification::Answer& answer);

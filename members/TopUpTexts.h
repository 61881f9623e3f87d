#pragma once

#include <QString>

#include "saleslib/TopUpBooks.h"

/// What the top-up dialog says.

QString noCardNumber();
QString notPositive();
/// The number was changed after its card was looked up.
QString numberChanged();
/// Why a card cannot be loaded; the outcome is a refusal.
QString topUpRefusal(const CardResult& result);
QString topUpFailed(const char* why);
QString topUpDone(const TopUp& topUp, Currency balance);

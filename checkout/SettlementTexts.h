#pragma once

#include <QString>
#include <string>

#include "saleslib/StoredCard.h"
#include "saleslib/Tenders.h"

struct DateTime;

/// What the settlement says: its dialog, its messages, and the bill's figures in words.

QString settlementTitle(const ClsSell& bill, const DateTime& now, const std::string& cashier);
QString goodsCount(const ClsSell& bill);

/// The bill's change, or that it does not fit.
QString changeText(const ClsSell& bill);
/// The status line after a sale. The bill's figures fit (see ClsSell::FiguresFit).
QString statusText(const ClsSell& bill, const ClsSysParam& rules);
/// The figures of the bill before, over the next one.
QString lastBillText(const ClsSell& bill, const ClsSysParam& rules);

/// Why a card did not pay.
QString cardRefusal(const CardResult& result);
QString cardPaid(Currency balance);
/// Why nothing was paid for.
QString cardNotCharged(const char* why);
QString cashNotStored(const std::string& why);
QString changeDoesNotFit();
QString noCardForRefunds();

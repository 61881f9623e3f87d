#pragma once

#include <QString>
#include <string>
#include <vector>

#include "saleslib/StoredCard.h"
#include "saleslib/Tenders.h"

struct DateTime;

/// What the settlement says: its dialog, its messages, and the bill's figures in words.

QString settlementTitle(const ClsSell& bill, const DateTime& now, const std::string& cashier);
QString goodsCount(const ClsSell& bill);

/// Names and figures of these kinds of payment, one behind the other.
std::string tenderFigures(const std::vector<const TenderKind*>& kinds, const ClsSell& bill,
                          std::string (*figure)(Currency));
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

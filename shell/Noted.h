#pragma once

#include <QString>

#include "saleslib/JournalKinds.h"

class QWidget;
class posMod;

/// Notes in the journal what is about to be done, if the shop keeps one. False, and a message said
/// why, when the store failed: then it is not to be done.
[[nodiscard]] bool noted(const posMod& pos, QWidget* parent, EntryKind kind,
                         const QString& touches = {});

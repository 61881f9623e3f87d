#pragma once

class QWidget;
class posMod;

/// Whether goods may be sold or taken back now: the shop does not work in shifts, or one is open,
/// or it is opened on the spot. Needs somebody logged in (ensure). Throws StoreError.
[[nodiscard]] bool requireShift(posMod& pos, QWidget* parent);
/// Asks for the float and opens a shift. False when it was given up.
[[nodiscard]] bool openShift(posMod& pos, QWidget* parent);

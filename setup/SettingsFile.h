#pragma once

class ClsPosSet;
class IniFile;
struct NewShop;

/// What a new shop's questions find in the till's settings file, and leave there.

/// What the file has already is the answer that is offered; where it says nothing of receipts on
/// the page printer, one a sale.
void readSettings(const IniFile& file, ClsPosSet& till, NewShop& shop);
/// The till's devices and colours, and for a shop of answers those that belong to the file; an
/// empty answer is not set, and takes away what was. Throws Refusal when they cannot be stored.
void storeSettings(const IniFile& file, const ClsPosSet& till, const NewShop& shop);

#pragma once

#include "shop/NewShop.h"
#include "tools/Questions.h"

/// Asks for a new shop's goods: a sheet, what its columns hold where that was guessed, its preview,
/// and whether it is the one; then goods that are typed.
void askForGoods(Questions& questions, NewShop& shop);

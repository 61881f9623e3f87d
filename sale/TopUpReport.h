#pragma once

class Messages;
class TopUpBooks;

/// Tells the cashier, once, which top-ups of stored-value cards were recorded without the card's
/// balance, because the program ended or the data file failed between the two. Throws StoreError
/// when they cannot be read.
void reportIncompleteTopUps(TopUpBooks& topUps, Messages& screen);

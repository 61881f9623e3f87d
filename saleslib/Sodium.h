#pragma once

/// Starts libsodium, before it is used, the first time. Throws StoreError.
void startSodium();

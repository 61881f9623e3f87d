#include "saleslib/Sodium.h"

#include <sodium.h>

#include "base/Words.h"
#include "store/StoreError.h"

void startSodium() {
  if (sodium_init() < 0) throw StoreError(Words::tr("密码组件无法启动，请与管理员联系！"));
}

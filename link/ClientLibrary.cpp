#include "link/ClientLibrary.h"

#include <dlfcn.h>

#include <string>

#include "base/Failure.h"
#include "base/Words.h"

namespace {

constexpr const char* kName = "libpq.so.5";

void* library() {
  static void* const handle = dlopen(kName, RTLD_NOW | RTLD_LOCAL);
  return handle;
}

}  // namespace

template <class Function>
Function ClientLibrary::found(const char* name) {
  void* const function = library() == nullptr ? nullptr : dlsym(library(), name);
  if (function == nullptr)
    throw Failure(Words::tr("这台机器没有 %1，连不上服务器。", std::string(kName)));
  return reinterpret_cast<Function>(function);
}

const ClientLibrary& ClientLibrary::loaded() {
  static const ClientLibrary functions;
  return functions;
}

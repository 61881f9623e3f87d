#include "sync/TillLine.h"

namespace {

LineParameters parametersOf(const ShopLink& link, const AuthorityFile& authority) {
  return tillParameters({.host = link.host,
                         .port = link.port,
                         .database = link.database,
                         .user = "till_" + std::to_string(link.till),
                         .password = link.password},
                        authority.path());
}

}  // namespace

TillLine::TillLine(const ShopLink& link)
    : authority_(link.authority), line_(parametersOf(link, authority_)) {}

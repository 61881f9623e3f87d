#include "link/ServerAddress.h"

namespace {

LineParameters parametersOf(const ServerAddress& address) {
  LineParameters parameters = {
      {"host", address.host},         {"port", std::to_string(address.port)},
      {"dbname", address.database},   {"user", address.user},
      {"password", address.password}, {"application_name", "till"},
      {"client_encoding", "UTF8"},    {"target_session_attrs", "read-write"}};
  if (address.isHere()) return parameters;
  parameters.insert(parameters.end(), {{"ssl_min_protocol_version", "TLSv1.3"},
                                       {"channel_binding", "require"},
                                       {"gssencmode", "disable"}});
  return parameters;
}

}  // namespace

LineParameters tillParameters(const ServerAddress& address, const std::string& authorityFile) {
  LineParameters parameters = parametersOf(address);
  if (address.isHere()) return parameters;
  parameters.insert(parameters.end(), {{"sslmode", "verify-full"}, {"sslrootcert", authorityFile}});
  return parameters;
}

LineParameters joiningParameters(const ServerAddress& address) {
  LineParameters parameters = parametersOf(address);
  if (!address.isHere()) parameters.emplace_back("sslmode", "require");
  return parameters;
}

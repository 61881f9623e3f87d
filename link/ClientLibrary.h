#pragma once

#include <libpq-fe.h>

/// The functions of libpq that a line calls, under their own names. The library is loaded by the
/// first line and not with the program: it brings a dozen others, and a till that belongs to no
/// shop with a server would pay for them at each start.
class ClientLibrary {
  template <class Function>
  static Function found(const char* name);

 public:
  /// Loads it the first time. Throws Failure where the machine does not have it.
  static const ClientLibrary& loaded();

// NOLINTNEXTLINE(bugprone-macro-parentheses): a function is declared by its bare name
#define TILL_CLIENT_FUNCTION(name) decltype(&::name) name = found<decltype(&::name)>(#name)
  TILL_CLIENT_FUNCTION(PQclear);
  TILL_CLIENT_FUNCTION(PQconnectPoll);
  TILL_CLIENT_FUNCTION(PQconnectStartParams);
  TILL_CLIENT_FUNCTION(PQconsumeInput);
  TILL_CLIENT_FUNCTION(PQencryptPasswordConn);
  TILL_CLIENT_FUNCTION(PQerrorMessage);
  TILL_CLIENT_FUNCTION(PQfinish);
  TILL_CLIENT_FUNCTION(PQflush);
  TILL_CLIENT_FUNCTION(PQfreemem);
  TILL_CLIENT_FUNCTION(PQgetResult);
  TILL_CLIENT_FUNCTION(PQgetisnull);
  TILL_CLIENT_FUNCTION(PQgetvalue);
  TILL_CLIENT_FUNCTION(PQisBusy);
  TILL_CLIENT_FUNCTION(PQnfields);
  TILL_CLIENT_FUNCTION(PQntuples);
  TILL_CLIENT_FUNCTION(PQnotifies);
  TILL_CLIENT_FUNCTION(PQresultErrorField);
  TILL_CLIENT_FUNCTION(PQresultErrorMessage);
  TILL_CLIENT_FUNCTION(PQresultStatus);
  TILL_CLIENT_FUNCTION(PQsendQuery);
  TILL_CLIENT_FUNCTION(PQsendQueryParams);
  TILL_CLIENT_FUNCTION(PQsetErrorVerbosity);
  TILL_CLIENT_FUNCTION(PQsetNoticeProcessor);
  TILL_CLIENT_FUNCTION(PQsetnonblocking);
  TILL_CLIENT_FUNCTION(PQsocket);
  TILL_CLIENT_FUNCTION(PQstatus);
#undef TILL_CLIENT_FUNCTION

 private:
  ClientLibrary() = default;
};

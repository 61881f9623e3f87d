#include "link/ServerLine.h"

#include <poll.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string_view>
#include <utility>

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Words.h"
#include "link/ClientLibrary.h"

namespace {

using std::chrono::steady_clock;

const ClientLibrary& pq() {
  return ClientLibrary::loaded();
}

struct ResultCloser {
  void operator()(PGresult* result) const { pq().PQclear(result); }
};
using Result = std::unique_ptr<PGresult, ResultCloser>;

ServerAnswer::Row rowOf(const PGresult* result, int row) {
  ServerAnswer::Row values;
  for (int column = 0; column < pq().PQnfields(result); ++column) {
    if (pq().PQgetisnull(result, row, column) != 0) {
      values.emplace_back(std::nullopt);
    } else {
      values.emplace_back(std::in_place, pq().PQgetvalue(result, row, column));
    }
  }
  return values;
}

std::string field(const PGresult* result, int code) {
  const char* text = pq().PQresultErrorField(result, code);
  return text == nullptr ? "" : text;
}

/// An error that the server gave and went on from. After a fatal one nobody knows.
bool isRefusal(const PGresult* result) {
  return pq().PQresultStatus(result) == PGRES_FATAL_ERROR &&
         field(result, PG_DIAG_SEVERITY_NONLOCALIZED) == "ERROR";
}

}  // namespace

std::optional<std::int64_t> wholeAt(const ServerAnswer::Row& row, std::size_t column) {
  const std::optional<std::string>& text = row.at(column);
  if (!text) return std::nullopt;
  return std::optional<std::int64_t>(std::in_place, std::atoll(text->c_str()));
}

void ServerLine::Closer::operator()(pg_conn* line) const {
  pq().PQfinish(line);
}

// The client library would begin with the first one each time, which may be the silent one.
ServerLine::ServerLine(LineParameters parameters) : parameters_(std::move(parameters)) {
  for (const auto& [name, value] : parameters_) {
    if (name != "host" || value.find(',') == std::string::npos) continue;
    std::istringstream all(value);
    for (std::string host; std::getline(all, host, ',');) hosts_.push_back(host);
  }
}

ServerLine::~ServerLine() = default;

void ServerLine::close() {
  line_.reset();
}

// A warning can say that the server did not wait for its second machine, for one: then what it
// answers may be forgotten.
void ServerLine::noticed(void* line, const char* text) {
  static_cast<ServerLine*>(line)->notice_ = text;
}

std::string ServerLine::fault() const {
  return line_ ? pq().PQerrorMessage(line_.get()) : "no memory for a line";
}

ServerAnswer ServerLine::unknown(const std::string& why) {
  ServerAnswer answer{.kind = ServerAnswer::kUnknown, .text = std::string(trimmed(why))};
  close();
  return answer;
}

namespace {

constexpr std::string_view kBeforeCode = ":  ", kBehindCode = ": ";
constexpr std::size_t kCode = 5;

/// Where what stands before a code begins; npos without one.
std::size_t beforeCode(const std::string& words) {
  const auto isOfCode = [](char each) {
    return (each >= '0' && each <= '9') || (each >= 'A' && each <= 'Z');
  };
  std::size_t at = words.find(kBeforeCode);
  for (; at != std::string::npos; at = words.find(kBeforeCode, at + 1)) {
    const std::string_view rest = std::string_view(words).substr(at + kBeforeCode.size());
    const std::string_view code = rest.substr(0, kCode);
    if (code.size() == kCode && std::ranges::all_of(code, isOfCode) &&
        rest.substr(kCode).starts_with(kBehindCode))
      break;
  }
  return at;
}

}  // namespace

// The library tells the code of what refused a line nowhere but in its longer text: "FATAL:  28P01:
// password ...", with the server's place in its own source in a further line. The words of a wrong
// certificate are the library's, too.
ServerAnswer ServerLine::notLetIn() {
  const std::string words = fault();
  if (const std::size_t at = beforeCode(words); at != std::string::npos) {
    const std::string reason = words.substr(at + kBeforeCode.size() + kCode + kBehindCode.size());
    ServerAnswer answer = unknown(words.substr(0, at) + ": " + reason.substr(0, reason.find('\n')));
    answer.state = words.substr(at + kBeforeCode.size(), kCode);
    return answer;
  }
  ServerAnswer answer = unknown(words);
  if (words.find("certificate") != std::string::npos) answer.state = answer.kWrongCertificate;
  return answer;
}

bool ServerLine::wait(bool forWriting, Moment deadline) const {
  const auto left =
      std::chrono::duration_cast<Milliseconds>(deadline - steady_clock::now()).count();
  if (left <= 0) return false;
  pollfd socket{pq().PQsocket(line_.get()),
                static_cast<short>(forWriting ? POLLIN | POLLOUT : POLLIN), 0};
  return poll(&socket, 1, static_cast<int>(std::min<long long>(left, INT32_MAX))) > 0;
}

std::optional<ServerAnswer> ServerLine::openFault(Moment deadline) {
  if (line_ && pq().PQstatus(line_.get()) == CONNECTION_OK) return std::nullopt;
  std::optional<ServerAnswer> fault = openOnce(deadline);
  if (fault && !hosts_.empty()) host_ = (host_ + 1) % hosts_.size();
  return fault;
}

std::optional<ServerAnswer> ServerLine::openOnce(Moment deadline) {
  try {
    ClientLibrary::loaded();
  } catch (const Failure& failure) {
    return unknown(failure.what());
  }
  std::vector<const char*> names, values;
  for (const auto& [name, value] : parameters_) {
    names.push_back(name.c_str());
    values.push_back(name == "host" && !hosts_.empty() ? hosts_[host_].c_str() : value.c_str());
  }
  names.push_back(nullptr);
  values.push_back(nullptr);
  line_.reset(pq().PQconnectStartParams(names.data(), values.data(), 1));
  if (!line_ || pq().PQstatus(line_.get()) == CONNECTION_BAD) return unknown(fault());
  pq().PQsetNoticeProcessor(line_.get(), &ServerLine::noticed, this);
  pq().PQsetErrorVerbosity(line_.get(), PQERRORS_VERBOSE);
  for (auto next = PGRES_POLLING_WRITING; next != PGRES_POLLING_OK;
       next = pq().PQconnectPoll(line_.get())) {
    if (next == PGRES_POLLING_FAILED) return notLetIn();
    if (!wait(next == PGRES_POLLING_WRITING, deadline)) return unknown("the server is silent");
  }
  pq().PQsetErrorVerbosity(line_.get(), PQERRORS_DEFAULT);
  if (pq().PQsetnonblocking(line_.get(), 1) != 0) return unknown(fault());
  return channel_.empty() ? std::nullopt : listen(deadline);
}

// A server where nobody may listen is asked without being called.
std::optional<ServerAnswer> ServerLine::listen(Moment deadline) {
  isCalled_ = true;
  ServerAnswer heard = askOpen(("listen " + channel_).c_str(), {}, deadline);
  if (heard.kind != ServerAnswer::kUnknown) return std::nullopt;
  return std::optional<ServerAnswer>(std::in_place, std::move(heard));
}

void ServerLine::listenTo(std::string channel) {
  if (channel == channel_) return;
  channel_ = std::move(channel);
  close();
}

// A line that turns out to be broken is opened anew by the next question.
bool ServerLine::wasCalled() {
  struct Releaser {
    void operator()(PGnotify* call) const { pq().PQfreemem(call); }
  };
  if (line_ && pq().PQconsumeInput(line_.get()) == 0) close();
  while (line_) {
    const std::unique_ptr<PGnotify, Releaser> call(pq().PQnotifies(line_.get()));
    if (!call) break;
    isCalled_ = true;
  }
  return std::exchange(isCalled_, false);
}

ServerAnswer ServerLine::ask(const char* statement, const ServerAnswer::Row& values,
                             Milliseconds patience) {
  if (auto failed = openFault(steady_clock::now() + patience)) return *failed;
  return askOpen(statement, values, steady_clock::now() + patience);
}

ServerAnswer ServerLine::askWithin(Milliseconds patience, const char* statement,
                                   const ServerAnswer::Row& values) {
  const Moment deadline = steady_clock::now() + patience;
  if (auto failed = openFault(deadline)) return *failed;
  return askOpen(statement, values, deadline);
}

ServerAnswer ServerLine::askOpen(const char* statement, const ServerAnswer::Row& values,
                                 Moment deadline) {
  std::vector<const char*> texts;
  texts.reserve(values.size());
  for (const auto& value : values) texts.push_back(value ? value->c_str() : nullptr);
  notice_.clear();
  if (pq().PQsendQueryParams(line_.get(), statement, static_cast<int>(texts.size()), nullptr,
                             texts.data(), nullptr, nullptr, 0) == 0)
    return unknown(fault());
  return answer(deadline);
}

ServerAnswer ServerLine::run(const std::string& script, Milliseconds patience) {
  if (auto failed = openFault(steady_clock::now() + patience)) return *failed;
  notice_.clear();
  if (pq().PQsendQuery(line_.get(), script.c_str()) == 0) return unknown(fault());
  return answer(steady_clock::now() + patience);
}

/// Sends what waits to be sent and takes in what has come, until a result is whole.
bool ServerLine::receive(Moment deadline) {
  for (;;) {
    const int unsent = pq().PQflush(line_.get());
    if (unsent < 0) return false;
    if (unsent == 0 && pq().PQisBusy(line_.get()) == 0) return true;
    if (!wait(unsent > 0, deadline)) return false;
    if (pq().PQconsumeInput(line_.get()) == 0) return false;
  }
}

ServerAnswer ServerLine::answer(Moment deadline) {
  ServerAnswer answer{.kind = ServerAnswer::kAnswer};
  for (;;) {
    if (!receive(deadline)) {
      const std::string why = fault();
      return unknown(why.empty() ? "the server is silent" : why);
    }
    const Result result(pq().PQgetResult(line_.get()));
    if (!result) break;
    const ExecStatusType status = pq().PQresultStatus(result.get());
    if (status == PGRES_TUPLES_OK || status == PGRES_COMMAND_OK) {
      for (int row = 0; row < pq().PQntuples(result.get()); ++row)
        answer.rows.push_back(rowOf(result.get(), row));
      continue;
    }
    if (!isRefusal(result.get())) return unknown(pq().PQresultErrorMessage(result.get()));
    answer.kind = ServerAnswer::kRefusal;
    answer.text = field(result.get(), PG_DIAG_MESSAGE_PRIMARY);
    answer.state = field(result.get(), PG_DIAG_SQLSTATE);
  }
  if (!notice_.empty()) return unknown(notice_);
  return answer;
}

std::string ServerLine::verifierOf(const std::string& password, const std::string& role) {
  std::optional<ServerAnswer> failed = openFault(steady_clock::now() + kPatience);
  for (std::size_t other = 1; failed && other < hosts_.size(); ++other)
    failed = openFault(steady_clock::now() + kPatience);
  if (failed) throw Failure(Words::tr("连不上服务器：%1", failed->text));
  const std::unique_ptr<char, void (*)(void*)> verifier(
      pq().PQencryptPasswordConn(line_.get(), password.c_str(), role.c_str(), "scram-sha-256"),
      pq().PQfreemem);
  if (!verifier) throw Failure(fault());
  return verifier.get();
}

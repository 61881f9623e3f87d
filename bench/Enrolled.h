#pragma once

#include <signal.h>

#include <memory>

#include "bench/ResidentMemory.h"
#include "bench/ServerBeside.h"
#include "bench/TwoTills.h"
#include "store/Connection.h"
#include "store/DataFile.h"

/// A till of a shop with a server, and one alone.
struct Enrolled {
  explicit Enrolled(Run& run) : tills(run, [this](Connection& shop) { beside.join(shop); }) {
    beside.await(*tills.other().pos().gConn);
  }
  /// What goes on beside the till would still be at work in the next row.
  ~Enrolled() {
    if (tillsync() > 0) ::kill(tillsync(), SIGKILL);
  }
  Enrolled(const Enrolled&) = delete;
  Enrolled& operator=(const Enrolled&) = delete;

  int tillsync() {
    return processOf("tillsync", tills.other().pos().gConn->source().path.string());
  }

  ServerBeside beside;
  TwoTills tills;
};

/// A data file that joined the shop, and no till.
struct JoinedFile {
  JoinedFile(Run& run, ServerBeside& beside)
      : folder(run.shops.emptyFolder()),
        connection(createDataFile({folder->path() / "POS.mdb", kBuiltInPassword})) {
    beside.join(*connection);
  }

  std::unique_ptr<BenchFolder> folder;
  std::unique_ptr<Connection> connection;
};

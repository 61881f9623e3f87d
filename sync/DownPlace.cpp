#include "sync/DownPlace.h"

#include "store/Connection.h"

DownPlace downPlace(Connection& connection) {
  Rows row = connection.query("select * from down_place");
  if (!row.next()) return {};
  return {.generation = row.text("generation"),
          .tx = row.text("tx"),
          .tbl = row.text("tbl"),
          .key = row.text("key"),
          .isWalking = row.whole("walking") == 1};
}

void keepDownPlace(Connection& connection, const DownPlace& place) {
  connection.run("delete from down_place");
  connection.run(
      "insert into down_place (one, generation, tx, tbl, key, walking) values (1, ?, ?, ?, ?, ?)",
      place.generation, place.tx, place.tbl, place.key, place.isWalking);
}

#pragma once

#include <string>
#include <vector>

class Connection;

/// The tables of the data file as data: one step of statements per version, applied in order.
/// A step that has shipped is never changed; a change of tables is a new step.
const std::vector<std::string>& schemaSteps();

/// Throws StoreError when the file is no shop's data file or is newer than this program.
void requireShopFile(Connection& connection);

/// Brings the tables to the newest version in one transaction. An empty file becomes a shop's data
/// file only when `isNew`. Throws as above.
void upgradeSchema(Connection& connection, bool isNew);

#pragma once

#include <map>
#include <string>

class Connection;
class ServerLine;

/// What is held against each other in the end, by its name: what is in stock of each item and on
/// each card, and how many bills, lines, returns and entries there are of each till.
using Figures = std::map<std::string, double>;

/// By a till's data file.
Figures figuresOf(Connection& till, int number);
/// By the server's rows. Throws std::runtime_error.
Figures figuresOf(ServerLine& server);

/// Adds what one has more than the other.
void addDifference(Figures& sums, const Figures& more, const Figures& less);
/// What is not the same, each on a line of its own; empty when they agree.
std::string difference(const Figures& expected, const Figures& found);

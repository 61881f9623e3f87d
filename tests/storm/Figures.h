#pragma once

#include <map>
#include <string>

class Connection;
class ServerLine;

/// What is held against each other in the end, by its name: what is in stock of each item, on each
/// card and bought by each member, and how many bills, lines, returns and entries there are of each
/// till.
using Figures = std::map<std::string, double>;

/// What a till did itself, by its data file: without what came down of the others.
Figures ownFigures(Connection& till, int number);
/// The shop's stock, cards and members as a till shows them, and as the server adds them up.
Figures shopFigures(Connection& till);
Figures shopFigures(ServerLine& server);
/// All that the server has. Throws std::runtime_error, as the one before.
Figures allFigures(ServerLine& server);

/// Adds what one has more than the other.
void addDifference(Figures& sums, const Figures& more, const Figures& less);
/// What is not the same, each on a line of its own; empty when they agree.
std::string difference(const Figures& expected, const Figures& found);

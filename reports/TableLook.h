#pragma once

class QTableView;

/// How the room's lists look and move: whole rows, no cell is edited, all rows of one height, the
/// Tab key leaves the list.
void lookLikeReport(QTableView& list);

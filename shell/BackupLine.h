#pragma once

#include <QCoreApplication>

class BackupKeeper;
class QPainter;
class QRect;

/// What the main window says of the dated backups, in one line: how old the last one is, in white
/// on red once three days' sales could be lost, and in a second one why the last could not be made.
class BackupLine {
  Q_DECLARE_TR_FUNCTIONS(BackupLine)

 public:
  /// In the painter's pen, at the upper left of the place; what is too long for it is cut short.
  static void paint(QPainter& painter, const QRect& place, const BackupKeeper& backups);
  /// The first line.
  static QString ageText(const BackupKeeper& backups);
};

/// Makes today's backup anew and waits for it, as at the end of the program; a window says so when
/// it takes a moment, and its button or Esc leaves the backup at what it was. Throws Failure when
/// it could not be made; the medium's absence is no failure. False when nobody wants backups or the
/// wait was ended.
[[nodiscard]] bool makeLastBackup(BackupKeeper* backups);

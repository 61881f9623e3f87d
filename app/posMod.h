#pragma once

#include <QCoreApplication>
#include <filesystem>
#include <memory>
#include <string>

#include "app/ClsPosSet.h"
#include "app/KeyBoard.h"
#include "app/Ports.h"
#include "base/DateTime.h"
#include "platform/IniFile.h"
#include "saleslib/ClsMemberSvc.h"
#include "saleslib/ClsOperator.h"
#include "saleslib/ClsSysParam.h"
#include "saleslib/Identification.h"
#include "saleslib/LoginBrake.h"
#include "saleslib/Permission.h"

class BackupKeeper;
class BillAuthority;
class BillBooks;
class CardAuthority;
class Connection;
class DataFileLock;
class Journal;
class ReturnBooks;
class ShiftBooks;
class SyncProgram;
class TopUpBooks;
struct DataSource;

/// The process-wide objects of the till, made once at start and handed by reference to every
/// window. Knows no window.
class posMod {
  Q_DECLARE_TR_FUNCTIONS(posMod)

 public:
  /// `shopFolder` holds Config.ini and data/ (base/ShopFolder.h): the program's folder or another.
  explicit posMod(std::filesystem::path shopFolder, Clock presentTime = localTime);
  ~posMod();
  posMod(const posMod&) = delete;
  posMod& operator=(const posMod&) = delete;

 private:
  std::unique_ptr<DataFileLock> lock_;  // outlives the connection that it guards

 public:
  std::filesystem::path folder;
  Clock clock;
  IniFile configIni;                  ///< folder/Config.ini
  std::unique_ptr<Connection> gConn;  ///< the one connection; none until OpenDataStore
  ClsSysParam gSysParam;
  ClsMemberSvc gMemberSvc;
  KeyBoard gKeyBoard;
  ClsPosSet gPosSet;
  std::shared_ptr<ClsOperator> gOperator;  ///< who is logged in; none when nobody is
  Permission permission{gSysParam};        ///< asked before all that needs a right
  LoginBrake loginBrake;
  std::unique_ptr<const Ports> ports;     ///< never none
  std::unique_ptr<BackupKeeper> backups;  ///< the dated ones; none until start, and unless wanted
  std::unique_ptr<CardAuthority> cards;   ///< of a till of a shop with a server; none until start
  std::unique_ptr<BillAuthority> bills;   ///< the same
  std::unique_ptr<SyncProgram> sync;      ///< the same

  /// Takes the till's lock on the data file and opens it: Path of section Database as
  /// DataSource::parse reads it (a relative one starts at the shop's folder), else
  /// folder/data/POS.mdb with the built-in password. An empty text, or why it could not, for a
  /// message box: where there is no file, with the command that makes one.
  [[nodiscard]] std::string OpenDataStore();
  /// Where the data file is, or would be (see OpenDataStore). Throws Failure.
  DataSource dataSource() const;
  /// Whether there is no data file, so that one may be made.
  [[nodiscard]] bool lacksDataFile() const;
  /// What the owner has to do before anybody can sell: an empty text, or that there is no operator
  /// who may, for a message. Needs the data file open. Throws StoreError.
  [[nodiscard]] std::string missingOperator() const;
  /// Makes what holds secrets private (base/PrivateFile.h): the data file with its logs and its
  /// backup, and Config.ini when the data file's password is in it. An empty text, or which
  /// files others keep rights on, for a message. Needs the data file open.
  [[nodiscard]] std::string protectFiles() const;
  /// Binds the services to the data file and loads keyboard map and terminal settings; hides the
  /// pointer unless the settings show it. `Backups`=1 or `BackupTo` of section Till, a folder (a
  /// relative one starts at the shop's), turn the dated backups on. In a till of a shop with a
  /// server it starts what brings there what happens. Needs the data file open.
  /// Throws StoreError.
  void start();
  /// The same of the till's shop alone, for a till that has joined one since.
  void startShop();
  /// The books, kept by who is logged in (ensure); what they are made of outlives them.
  BillBooks billBooks() const;
  ReturnBooks returnBooks() const;
  TopUpBooks topUpBooks() const;
  ShiftBooks shiftBooks() const;
  /// Who somebody is who gives a number and password; the same brake for all who ask.
  Identification identification();
  /// A till to practise at, for the same operator and with the same keys, devices (but for the
  /// drawer, which it has none of) and goods. All that it writes goes into a data file of its own,
  /// which is gone with it. Its papers say so in the place of the shop's name. Needs the data file
  /// open and somebody logged in (ensure). Throws Failure.
  std::unique_ptr<posMod> practice() const;
  /// For what is done without writing into the books; those note for themselves what they do.
  Journal journal() const;
  /// Forces the mouse pointer visible or hidden.
  void ShowMouse(bool show);
  /// Logs the operator off, if one is logged in. Throws Failure, for a data file that has been
  /// deleted, replaced or linked even when nobody is; whoever was logged in still is then.
  void logOff();
  /// Whether the end of the program makes a backup: as the shop has it, and in any case when what
  /// was stored last is in a file that lost its name.
  [[nodiscard]] bool wantsBackUp() const;
  /// Copies the data file that is open, whichever name it has by now, over folder/data/pos3.mdb,
  /// whole and consistent; the copy is private. Throws Failure; an earlier copy is then as it was.
  void backUp();

 private:
  void startBackups();
  std::filesystem::path backupPath() const;
};

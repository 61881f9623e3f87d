#pragma once

#include <string>

class IniFile;

/// The settings of this one till. Texts are the setting's own (they are what the file holds).
class ClsPosSet {
 public:
  std::string PPort;        ///< receipt printer: "", "LPT1", "LPT2" or "USB" (page printer)
  int PModel = 1;           ///< paper: 1 wide, 2 narrow
  std::string printAmount;  ///< printing mode, see devices/PrintMode.h
  std::string printOption;  ///< line layout of the page printer, see checkout/PageReceipt.h
  std::string MBPort;       ///< cash drawer: "", "LPT1", "LPT2", "COM1" or "COM2"
  std::string CVProt;       ///< customer display: "", "COM1", "COM2" or a port number
  int CVModel = 1;          ///< display model: 1 中崎ZQ-8DL, 2 川田PDLED8C
  int VMouse = 0;           ///< mouse pointer: 0 hidden, 1 shown
  int C1 = 0;               ///< colours 0x00BBGGRR: main window and sale screen back
  int C2 = 0;               ///< status line back
  int C3 = 0;               ///< status line text
  int C4 = 0;               ///< member line text
  int C5 = 0;               ///< title text
  int C6 = 0;               ///< second line text

  bool operator==(const ClsPosSet&) const = default;

  /// Reads all fourteen. An absent key has its default; a key with an empty value leaves "" or 0;
  /// one that should be a number and is none keeps its default.
  void LoadSet(const IniFile& file);
  /// Writes all fourteen, empty values too. A file that cannot be written is not reported.
  void SaveSet(const IniFile& file) const;
};

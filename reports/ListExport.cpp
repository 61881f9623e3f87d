#include "reports/ListExport.h"

#include "base/Text.h"
#include "base/WholeFile.h"
#include "reports/CsvExport.h"
#include "reports/XlsxExport.h"

bool exportList(const std::filesystem::path& file, const ExportTable& table,
                const ExportProgress& goOn) {
  WholeFile unfinished(file);
  const bool isCsv = equalIgnoringCase(file.extension().string(), ".csv");
  const bool isWhole =
      isCsv ? writeCsv(unfinished, table, goOn) : writeXlsx(unfinished, table, goOn);
  if (isWhole) unfinished.finish();
  return isWhole;
}

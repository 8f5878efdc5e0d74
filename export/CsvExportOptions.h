#pragma once

#include <string>

namespace VELIX {

/// What the CSV export writes and where.
struct CsvExportOptions
{
    std::string directory = ".";              ///< UTF-8
    std::string fileName = "ExportVelix.csv"; ///< UTF-8
    char delimiter = ';';
    int resolution = 100;      ///< ms per row: 100 or 10
    bool allParameters = true; ///< false: only the parameters that the user selected
    bool aligned = false;      ///< every row has every column, empty where there is no sample
};

} // namespace VELIX

#include "export/wizard/DialogExportCsv.h"

#include "core/Property.h"
#include "export/wizard/DialogExportCsvOptions.h"
#include "export/wizard/DialogExportCsvPath.h"

#include <limits>
#include <utility>

namespace VELIX {

namespace {

constexpr const char* kDirectory = "CsvExportDir";
constexpr const char* kLimiter = "CsvLimiter";
constexpr const char* kResolution = "CsvResolution";
constexpr const char* kAllParameter = "CsvAllParameter";
constexpr const char* kAligned = "CsvAligned";

char delimiter(int code)
{
    return code > 0 && code <= std::numeric_limits<signed char>::max() ? static_cast<char>(code)
                                                                       : ';';
}

} // namespace

DialogExportCsv::DialogExportCsv(Property& settings, DialogService& dialogs, RowCounter rows,
                                 QWidget* parent)
    : QWizard(parent), mSettings(settings), mRows(std::move(rows))
{
    setWindowTitle(tr("CSV Export"));
    setWizardStyle(QWizard::ModernStyle);
    setOption(QWizard::NoBackButtonOnStartPage);
    addPage(new DialogExportCsvPath(dialogs, mOptions, this));
    addPage(new DialogExportCsvOptions(mOptions, mRows, this));
}

bool DialogExportCsv::getOptions(CsvExportOptions& options)
{
    loadOptions();
    if (exec() != QDialog::Accepted) {
        return false;
    }
    storeOptions();
    options = mOptions;
    return true;
}

void DialogExportCsv::loadOptions()
{
    mOptions = CsvExportOptions();
    mOptions.directory = mSettings.getString(kDirectory, mOptions.directory);
    mOptions.delimiter = delimiter(mSettings.getInt(kLimiter, mOptions.delimiter));
    mOptions.resolution = mSettings.getInt(kResolution, mOptions.resolution);
    mOptions.allParameters = mSettings.getSwitch(kAllParameter, mOptions.allParameters);
    mOptions.aligned = mSettings.getSwitch(kAligned, mOptions.aligned);
    restart();
}

void DialogExportCsv::storeOptions()
{
    mSettings.setString(kDirectory, mOptions.directory);
    mSettings.setInt(kLimiter, mOptions.delimiter);
    mSettings.setInt(kResolution, mOptions.resolution);
    mSettings.setSwitch(kAllParameter, mOptions.allParameters);
    mSettings.setSwitch(kAligned, mOptions.aligned);
    mSettings.writeXmlFile();
}

} // namespace VELIX

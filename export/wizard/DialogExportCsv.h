#pragma once

#include "export/CsvExportOptions.h"

#include <QWizard>

#include <cstddef>
#include <functional>

namespace VELIX {

class DialogService;
class Property;

/// The wizard that collects what the CSV export writes and where; the settings keep the answers.
class DialogExportCsv : public QWizard
{
    Q_OBJECT

public:
    /// Says how many rows an export of the given record would write; called on every change of
    /// the options.
    using RowCounter = std::function<std::size_t(const CsvExportOptions&)>;

    DialogExportCsv(Property& settings, DialogService& dialogs, RowCounter rows,
                    QWidget* parent = nullptr);

    /// Asks the user; false if the wizard was cancelled: neither `options` nor settings change.
    [[nodiscard]] bool getOptions(CsvExportOptions& options);

    /// Fills the pages from the settings and starts at the first one.
    void loadOptions();
    /// Writes the answers to the settings and to their file.
    void storeOptions();

    /// The answers so far.
    const CsvExportOptions& options() const { return mOptions; }

private:
    Property& mSettings;
    RowCounter mRows;
    CsvExportOptions mOptions;
};

} // namespace VELIX

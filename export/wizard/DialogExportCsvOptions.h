#pragma once

#include <QWizardPage>

#include <cstddef>
#include <functional>

class QCheckBox;

namespace VELIX {

class ExportSummary;
class QwtComboBox;
struct CsvExportOptions;

/// What the CSV export writes: delimiter, time resolution, parameters; the wizard's last page, with
/// a summary of it.
class DialogExportCsvOptions : public QWizardPage
{
    Q_OBJECT

public:
    using RowCounter = std::function<std::size_t(const CsvExportOptions&)>;

    /// The options and the counter belong to the wizard; the options follow the controls at once.
    DialogExportCsvOptions(CsvExportOptions& options, const RowCounter& rows,
                           QWidget* parent = nullptr);

    void initializePage() override;

private slots:
    void slotLimiter(int code);
    void slotResolution(int milliseconds);
    void slotParameter(int index);
    void slotAligned(bool on);

private:
    void createControls();
    void createLayout();
    void updateSummary();

    CsvExportOptions& mOptions;
    const RowCounter& mRows;
    QwtComboBox* mLimiter;
    QwtComboBox* mResolution;
    QwtComboBox* mParameter;
    QCheckBox* mAligned;
    ExportSummary* mSummary;
};

} // namespace VELIX

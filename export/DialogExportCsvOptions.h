#pragma once

#include <QWizardPage>

class QCheckBox;

namespace VELIX {

class QwtComboBox;
struct CsvExportOptions;

/// What the CSV export writes: delimiter, time resolution, parameters.
class DialogExportCsvOptions : public QWizardPage
{
    Q_OBJECT

public:
    /// The options belong to the wizard and follow the controls at once.
    explicit DialogExportCsvOptions(CsvExportOptions& options, QWidget* parent = nullptr);

    void initializePage() override;

private slots:
    void slotLimiter(int code);
    void slotResolution(int milliseconds);
    void slotParameter(int index);
    void slotAligned(bool on);

private:
    void createControls();
    void createLayout();

    CsvExportOptions& mOptions;
    QwtComboBox* mLimiter;
    QwtComboBox* mResolution;
    QwtComboBox* mParameter;
    QCheckBox* mAligned;
};

} // namespace VELIX

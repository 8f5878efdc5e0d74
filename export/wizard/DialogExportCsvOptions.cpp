#include "export/wizard/DialogExportCsvOptions.h"

#include "export/CsvExportOptions.h"
#include "export/wizard/ExportSummary.h"
#include "gui/look/QwtComboBox.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QVariant>

namespace VELIX {

namespace {

constexpr int kGap = 8;
constexpr int kAllParameters = 0;
constexpr int kSelectedParameters = 1;

/// A value without an item, for example of a settings file that was edited by hand, counts as the
/// first item, whose value the option then takes.
template <typename Function>
void select(QwtComboBox& box, int data, Function store)
{
    box.selectData(data);
    if (box.currentIndex() < 0) {
        box.setCurrentIndex(0);
        store(box.currentData().toInt());
    }
}

} // namespace

DialogExportCsvOptions::DialogExportCsvOptions(CsvExportOptions& options, const RowCounter& rows,
                                               QWidget* parent)
    : QWizardPage(parent),
      mOptions(options),
      mRows(rows),
      mLimiter(new QwtComboBox(this)),
      mResolution(new QwtComboBox(this)),
      mParameter(new QwtComboBox(this)),
      mAligned(new QCheckBox(tr("Aligned columns"), this)),
      mSummary(new ExportSummary(this))
{
    setTitle(tr("CSV Export"));
    setSubTitle(tr("Select CSV Option"));
    createControls();
    createLayout();
}

void DialogExportCsvOptions::createControls()
{
    mLimiter->addItem(tr("Semikolon ;"), int{';'});
    mLimiter->addItem(tr("Comma ,"), int{','});
    mLimiter->addItem(tr("Tabstop"), int{'\t'});
    mResolution->addItem(tr("100 ms"), 100);
    mResolution->addItem(tr("10 ms"), 10);
    mParameter->addItem(tr("All Parameter"), kAllParameters);
    mParameter->addItem(tr("Selected Parameter only"), kSelectedParameters);
    mSummary->addLine(tr("Rows"));

    mLimiter->setObjectName(QStringLiteral("csvLimiter"));
    mResolution->setObjectName(QStringLiteral("csvResolution"));
    mParameter->setObjectName(QStringLiteral("csvParameter"));
    mAligned->setObjectName(QStringLiteral("csvAligned"));

    const auto activated = qOverload<int>(&QwtComboBox::signalActivated);
    connect(mLimiter, activated, this, &DialogExportCsvOptions::slotLimiter);
    connect(mResolution, activated, this, &DialogExportCsvOptions::slotResolution);
    connect(mParameter, activated, this, &DialogExportCsvOptions::slotParameter);
    connect(mAligned, &QCheckBox::toggled, this, &DialogExportCsvOptions::slotAligned);
}

void DialogExportCsvOptions::createLayout()
{
    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    layout->setSpacing(kGap);
    layout->addRow(tr("Limiter"), mLimiter);
    layout->addRow(tr("Resolution"), mResolution);
    layout->addRow(tr("Parameter Selection"), mParameter);
    layout->addRow(QString(), mAligned);
    auto* reason = new QLabel(tr("Without this, cells move left where a sample is missing"), this);
    reason->setProperty("role", QStringLiteral("muted"));
    layout->addRow(QString(), reason);
    layout->addRow(mSummary);
}

void DialogExportCsvOptions::initializePage()
{
    select(*mLimiter, mOptions.delimiter, [this](int code) { slotLimiter(code); });
    select(*mResolution, mOptions.resolution, [this](int ms) { slotResolution(ms); });
    mParameter->selectData(mOptions.allParameters ? kAllParameters : kSelectedParameters);
    mAligned->setChecked(mOptions.aligned);
    mSummary->setFile(mOptions.directory, mOptions.fileName);
    updateSummary();
}

void DialogExportCsvOptions::updateSummary()
{
    const std::size_t rows = mRows(mOptions);
    mSummary->setCount(0, rows,
                       rows == 0 && !mOptions.allParameters
                           ? tr("no parameter is selected or has samples")
                           : QString());
}

void DialogExportCsvOptions::slotLimiter(int code)
{
    mOptions.delimiter = static_cast<char>(code);
}

void DialogExportCsvOptions::slotResolution(int milliseconds)
{
    mOptions.resolution = milliseconds;
    updateSummary();
}

void DialogExportCsvOptions::slotParameter(int index)
{
    mOptions.allParameters = index != kSelectedParameters;
    updateSummary();
}

void DialogExportCsvOptions::slotAligned(bool on)
{
    mOptions.aligned = on;
}

} // namespace VELIX

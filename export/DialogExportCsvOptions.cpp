#include "export/DialogExportCsvOptions.h"

#include "export/CsvExportOptions.h"
#include "gui/QwtComboBox.h"

#include <QCheckBox>
#include <QFormLayout>

namespace VELIX {

namespace {

constexpr int kAllParameters = 0;
constexpr int kSelectedParameters = 1;

/// A value that no item stands for, for example of a settings file edited by hand, counts as the
/// first item, which then is what the option says, too.
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

DialogExportCsvOptions::DialogExportCsvOptions(CsvExportOptions& options, QWidget* parent)
    : QWizardPage(parent),
      mOptions(options),
      mLimiter(new QwtComboBox(this)),
      mResolution(new QwtComboBox(this)),
      mParameter(new QwtComboBox(this)),
      mAligned(new QCheckBox(tr("Every row has every column"), this))
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
    mAligned->setToolTip(tr("Parameters that have no sample at a time leave an empty cell.\n"
                            "Without this, the cells after it move to the left."));

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
    layout->addRow(tr("Limiter"), mLimiter);
    layout->addRow(tr("Resolution"), mResolution);
    layout->addRow(tr("Parameter Selection"), mParameter);
    layout->addRow(QString(), mAligned);
}

void DialogExportCsvOptions::initializePage()
{
    select(*mLimiter, mOptions.delimiter, [this](int code) { slotLimiter(code); });
    select(*mResolution, mOptions.resolution, [this](int ms) { slotResolution(ms); });
    mParameter->selectData(mOptions.allParameters ? kAllParameters : kSelectedParameters);
    mAligned->setChecked(mOptions.aligned);
}

void DialogExportCsvOptions::slotLimiter(int code)
{
    mOptions.delimiter = static_cast<char>(code);
}

void DialogExportCsvOptions::slotResolution(int milliseconds)
{
    mOptions.resolution = milliseconds;
}

void DialogExportCsvOptions::slotParameter(int index)
{
    mOptions.allParameters = index != kSelectedParameters;
}

void DialogExportCsvOptions::slotAligned(bool on)
{
    mOptions.aligned = on;
}

} // namespace VELIX

#include "export/wizard/DialogExportKmlPlacemark.h"

#include "export/wizard/ExportColorButton.h"
#include "export/wizard/ExportSummary.h"
#include "export/wizard/KmlOptionRanges.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kGap = 8;
constexpr int kIndent = 24; ///< of controls below the check box that they depend on
constexpr int kInterval = 5;

enum ESummaryLine : int { ePathLine, eMarksLine, eEventsLine };

/// The rows of controls that depend on the check box above them.
QFormLayout* detailsOf(QWidget* details)
{
    auto* layout = new QFormLayout(details);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    layout->setContentsMargins(kIndent, 0, 0, 0);
    layout->setSpacing(kGap);
    return layout;
}

} // namespace

DialogExportKmlPlacemark::DialogExportKmlPlacemark(DialogService& dialogs,
                                                   KmlExportOptions& options,
                                                   const KmlSummarizer& summarizer, QWidget* parent)
    : QWizardPage(parent),
      mOptions(options),
      mSummarizer(summarizer),
      mPlacemark(new QCheckBox(tr("Draw selected parameters as placemarks"), this)),
      mStep(new QSpinBox(this)),
      mColor(new ExportColorButton(dialogs, options.placeMarkColor, nullptr, this)),
      mError(new QCheckBox(tr("Show Limit exceedance / Warning Lamps"), this)),
      mLimit(new QCheckBox(tr("Limit Exceedance"), this)),
      mWarning(new QCheckBox(tr("Warning Lamps"), this)),
      mErrorColor(new ExportColorButton(dialogs, options.errorMarkColor, nullptr, this)),
      mPlacemarkDetails(new QWidget(this)),
      mErrorDetails(new QWidget(this)),
      mSummary(new ExportSummary(this))
{
    setTitle(tr("KML Export"));
    setSubTitle(tr("Select KML Placemarks"));
    mStep->setRange(KmlOptionRanges::kInterval.least, KmlOptionRanges::kInterval.most);
    mStep->setSingleStep(kInterval);
    mStep->setSuffix(tr(" samples"));
    mSummary->addLine(tr("Path points"));
    mSummary->addLine(tr("Placemarks of parameters"));
    mSummary->addLine(tr("Placemarks of events"));
    nameControls();
    connectControls();
    createLayout();
}

void DialogExportKmlPlacemark::nameControls()
{
    mPlacemark->setObjectName(QStringLiteral("kmlPlacemark"));
    mStep->setObjectName(QStringLiteral("kmlPlacemarkStep"));
    mColor->setObjectName(QStringLiteral("kmlPlacemarkColor"));
    mError->setObjectName(QStringLiteral("kmlError"));
    mLimit->setObjectName(QStringLiteral("kmlLimit"));
    mWarning->setObjectName(QStringLiteral("kmlWarning"));
    mErrorColor->setObjectName(QStringLiteral("kmlErrorColor"));
    mColor->setAccessibleName(tr("Placemark Color"));
    mErrorColor->setAccessibleName(tr("Exceedance Placemark Color"));
}

void DialogExportKmlPlacemark::connectControls()
{
    using Page = DialogExportKmlPlacemark;
    connect(mPlacemark, &QCheckBox::toggled, this, &Page::slotPlacemark);
    connect(mStep, qOverload<int>(&QSpinBox::valueChanged), this, &Page::slotPlacemarkStep);
    connect(mColor, &QPushButton::clicked, this, &Page::slotPlacemarkColor);
    connect(mError, &QCheckBox::toggled, this, &Page::slotError);
    connect(mLimit, &QCheckBox::stateChanged, this, &Page::slotLimit);
    connect(mWarning, &QCheckBox::stateChanged, this, &Page::slotWarning);
    connect(mErrorColor, &QPushButton::clicked, this, &Page::slotErrorColor);
}

void DialogExportKmlPlacemark::createLayout()
{
    QFormLayout* marks = detailsOf(mPlacemarkDetails);
    marks->addRow(tr("Placemark every"), mStep);
    marks->addRow(tr("Placemark Color"), mColor);
    QFormLayout* events = detailsOf(mErrorDetails);
    events->addRow(mLimit);
    events->addRow(mWarning);
    events->addRow(tr("Exceedance Placemark Color"), mErrorColor);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(kGap);
    layout->addWidget(mPlacemark);
    layout->addWidget(mPlacemarkDetails);
    layout->addWidget(mError);
    layout->addWidget(mErrorDetails);
    layout->addStretch(1);
    layout->addWidget(mSummary);
}

void DialogExportKmlPlacemark::initializePage()
{
    {
        const QScopedValueRollback<bool> filling(mFilling, true);
        mPlacemark->setChecked(mOptions.placeMarkOn);
        mStep->setValue(mOptions.placeMarkInterval);
        mColor->refresh();
        mError->setChecked(mOptions.errorMarkOn);
        mLimit->setChecked(mOptions.showLimit);
        mWarning->setChecked(mOptions.showWarning);
        mErrorColor->refresh();
        slotPlacemark(mOptions.placeMarkOn);
        slotError(mOptions.errorMarkOn);
    }
    mSummary->setFile(mOptions.directory, mOptions.fileName);
    updateSummary();
}

void DialogExportKmlPlacemark::updateSummary()
{
    if (mFilling) {
        return;
    }
    const KmlSummary summary = mSummarizer(mOptions);
    mSummary->setCount(ePathLine, summary.pathPoints,
                       summary.hasPositions ? QString() : tr("the record has no positions"));
    const bool nothingSelected = mOptions.placeMarkOn && mOptions.parameters.empty();
    mSummary->setCount(eMarksLine, summary.parameterMarks,
                       nothingSelected ? tr("no parameter is selected") : QString());
    mSummary->setCount(eEventsLine, summary.eventMarks);
}

void DialogExportKmlPlacemark::slotPlacemark(bool on)
{
    mOptions.placeMarkOn = on;
    mPlacemarkDetails->setEnabled(on);
    updateSummary();
}

void DialogExportKmlPlacemark::slotPlacemarkStep(int samples)
{
    mOptions.placeMarkInterval = samples;
    updateSummary();
}

void DialogExportKmlPlacemark::slotPlacemarkColor()
{
    mColor->choose(tr("Select Placemark Color"));
}

void DialogExportKmlPlacemark::slotError(bool on)
{
    mOptions.errorMarkOn = on;
    mErrorDetails->setEnabled(on);
    updateSummary();
}

void DialogExportKmlPlacemark::slotLimit(int state)
{
    mOptions.showLimit = state == Qt::Checked;
    updateSummary();
}

void DialogExportKmlPlacemark::slotWarning(int state)
{
    mOptions.showWarning = state == Qt::Checked;
    updateSummary();
}

void DialogExportKmlPlacemark::slotErrorColor()
{
    mErrorColor->choose(tr("Select Exceedance Placemark Color"));
}

} // namespace VELIX

#include "export/wizard/DialogExportKmlOptions.h"

#include "export/KmlExportOptions.h"
#include "export/wizard/ExportColorButton.h"
#include "export/wizard/KmlOptionRanges.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>
#include <QVariant>

namespace VELIX {

namespace {

constexpr int kGap = 8;
constexpr int kIndent = 24; ///< of the text below its check box

} // namespace

DialogExportKmlOptions::DialogExportKmlOptions(DialogService& dialogs, KmlExportOptions& options,
                                               QWidget* parent)
    : QWizardPage(parent),
      mOptions(options),
      mTimestamp(new QSpinBox(this)),
      mLineWidth(new QSpinBox(this)),
      mLineColor(new ExportColorButton(dialogs, options.lineColor, &options.lineAlpha, this)),
      mPolygon(new QCheckBox(tr("Draw Polygon"), this)),
      mPolygonColor(
          new ExportColorButton(dialogs, options.polygonColor, &options.polygonAlpha, this)),
      mStandard(new QCheckBox(tr("Standard KML 2.2"), this)),
      mPolygonLabel(new QLabel(tr("Polygon color"), this))
{
    setTitle(tr("KML Export"));
    setSubTitle(tr("Select KML Option"));
    mTimestamp->setRange(KmlOptionRanges::kTimeStep.least, KmlOptionRanges::kTimeStep.most);
    mTimestamp->setSuffix(tr(" s"));
    mLineWidth->setRange(KmlOptionRanges::kLineWidth.least, KmlOptionRanges::kLineWidth.most);
    nameControls();
    connectControls();
    createLayout();
}

void DialogExportKmlOptions::nameControls()
{
    mTimestamp->setObjectName(QStringLiteral("kmlTimestamp"));
    mLineWidth->setObjectName(QStringLiteral("kmlLineWidth"));
    mLineColor->setObjectName(QStringLiteral("kmlLineColor"));
    mPolygon->setObjectName(QStringLiteral("kmlPolygon"));
    mPolygonColor->setObjectName(QStringLiteral("kmlPolygonColor"));
    mStandard->setObjectName(QStringLiteral("kmlStandard"));
    mLineColor->setAccessibleName(tr("Line color"));
    mPolygonColor->setAccessibleName(tr("Polygon color"));
    mPolygon->setToolTip(tr("A curtain from the path down to the ground"));
}

void DialogExportKmlOptions::connectControls()
{
    const auto spun = qOverload<int>(&QSpinBox::valueChanged);
    connect(mTimestamp, spun, this, &DialogExportKmlOptions::slotTimestamp);
    connect(mLineWidth, spun, this, &DialogExportKmlOptions::slotLineWidth);
    connect(mLineColor, &QPushButton::clicked, this, &DialogExportKmlOptions::slotLineColor);
    connect(mPolygon, &QCheckBox::toggled, this, &DialogExportKmlOptions::slotPolygon);
    connect(mPolygonColor, &QPushButton::clicked, this, &DialogExportKmlOptions::slotPolygonColor);
    connect(mStandard, &QCheckBox::toggled, this, &DialogExportKmlOptions::slotStandard);
}

QGroupBox* DialogExportKmlOptions::createLineGroup()
{
    auto* group = new QGroupBox(tr("Line Style"), this);
    auto* layout = new QFormLayout(group);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    layout->setSpacing(kGap);
    layout->addRow(tr("Line width"), mLineWidth);
    layout->addRow(tr("Line color"), mLineColor);
    layout->addRow(mPolygon);
    layout->addRow(mPolygonLabel, mPolygonColor);
    return group;
}

void DialogExportKmlOptions::createLayout()
{
    auto* standardText =
        new QLabel(tr("For programs that refuse files or colors of the usual form"), this);
    standardText->setProperty("role", QStringLiteral("muted"));
    standardText->setIndent(kIndent);
    auto* layout = new QFormLayout(this);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    layout->setSpacing(kGap);
    layout->addRow(tr("Timestamp every :"), mTimestamp);
    layout->addRow(createLineGroup());
    layout->addRow(mStandard);
    layout->addRow(standardText);
}

void DialogExportKmlOptions::initializePage()
{
    mTimestamp->setValue(mOptions.timeStep);
    mLineWidth->setValue(mOptions.lineWidth);
    mLineColor->refresh();
    mPolygon->setChecked(mOptions.polygonOn);
    mPolygonColor->refresh();
    mStandard->setChecked(mOptions.standard);
    slotPolygon(mOptions.polygonOn);
}

void DialogExportKmlOptions::slotTimestamp(int seconds)
{
    mOptions.timeStep = seconds;
}

void DialogExportKmlOptions::slotLineWidth(int pixels)
{
    mOptions.lineWidth = pixels;
}

void DialogExportKmlOptions::slotLineColor()
{
    mLineColor->choose(tr("Select Line Color"));
}

void DialogExportKmlOptions::slotPolygon(bool on)
{
    mOptions.polygonOn = on;
    mPolygonLabel->setEnabled(on);
    mPolygonColor->setEnabled(on);
}

void DialogExportKmlOptions::slotPolygonColor()
{
    mPolygonColor->choose(tr("Select Polygon Color"));
}

void DialogExportKmlOptions::slotStandard(bool on)
{
    mOptions.standard = on;
}

} // namespace VELIX

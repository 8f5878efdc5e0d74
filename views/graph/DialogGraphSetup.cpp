#include "views/graph/DialogGraphSetup.h"

#include "gui/look/ColorButton.h"
#include "views/graph/model/GraphData.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>

#include <cmath>

namespace VELIX {

namespace {

constexpr int kLeastWidth = 420;
constexpr int kLimitWidth = 96;
constexpr int kMargin = 8;

QHBoxLayout* rowOf(std::initializer_list<QWidget*> widgets)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(kMargin);
    for (QWidget* widget : widgets) {
        row->addWidget(widget);
    }
    row->addStretch(1);
    return row;
}

} // namespace

DialogGraphSetup::DialogGraphSetup(QWidget* parent, GraphData& settings)
    : QDialog(parent), mData(settings)
{
    setWindowTitle(tr("Oscilloscope Setup"));
    setMinimumWidth(kLeastWidth);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    form->setSpacing(kMargin);
    form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    createColors(form);
    createSwitches(form);

    auto* box = new QDialogButtonBox(this);
    connect(box->addButton(tr("Close"), QDialogButtonBox::RejectRole), &QPushButton::clicked, this,
            &DialogGraphSetup::slotClose);
    form->addRow(box);
    updateDialog();
}

void DialogGraphSetup::createColors(QFormLayout* form)
{
    mBackColor = colorButton("buttonBackColor", &DialogGraphSetup::slotBackgroundColor);
    mGridOn = switchBox(tr("Grid On"), "boxGridOn", &DialogGraphSetup::slotGridOn);
    mGridColor = colorButton("buttonGridColor", &DialogGraphSetup::slotGridColor);
    mLabelColor = colorButton("buttonLabelColor", &DialogGraphSetup::slotLabelColor);
    mLabelBackColor = colorButton("buttonLabelBackColor", &DialogGraphSetup::slotLabelBackColor);
    form->addRow(tr("Background Color :"), rowOf({mBackColor}));
    form->addRow(tr("Grid On/Color :"), rowOf({mGridOn, mGridColor}));
    form->addRow(tr("Label Color :"), rowOf({mLabelColor}));
    form->addRow(tr("Label Background :"), rowOf({mLabelBackColor}));
}

void DialogGraphSetup::createSwitches(QFormLayout* form)
{
    mCursorOn = switchBox(tr("Cursor On"), "boxCursorOn", &DialogGraphSetup::slotCursorOn);
    mCursorMode = new QComboBox;
    mCursorMode->setObjectName(QStringLiteral("comboCursorMode"));
    mCursorMode->setAccessibleName(tr("Cursor mode"));
    mCursorMode->addItems({tr("Floating"), tr("Center"), tr("End")});
    connect(mCursorMode, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &DialogGraphSetup::slotCursorMode);
    mLegendOn = switchBox(tr("Legend On"), "boxLegendOn", &DialogGraphSetup::slotLegendOn);
    mAutoscaleOn =
        switchBox(tr("Autoscale On"), "boxAutoscaleOn", &DialogGraphSetup::slotAutoscaleOn);
    mYmin = limitEdit(tr("Y minimum"), "editYmin", &DialogGraphSetup::slotYmin);
    mYmax = limitEdit(tr("Y maximum"), "editYmax", &DialogGraphSetup::slotYmax);
    form->addRow(tr("Cursor On/Mode :"), rowOf({mCursorOn, mCursorMode}));
    form->addRow(tr("Legend :"), rowOf({mLegendOn}));
    QHBoxLayout* scale = rowOf({mAutoscaleOn, mYmin, mYmax});
    scale->setStretchFactor(mYmin, 1);
    scale->setStretchFactor(mYmax, 1);
    form->addRow(tr("Y-Scale :"), scale);
}

ColorButton* DialogGraphSetup::colorButton(const char* name, void (DialogGraphSetup::*slot)())
{
    auto* button = new ColorButton(tr("Select"));
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

QCheckBox* DialogGraphSetup::switchBox(const QString& text, const char* name,
                                       void (DialogGraphSetup::*slot)(int))
{
    auto* box = new QCheckBox(text);
    box->setObjectName(QLatin1String(name));
    connect(box, &QCheckBox::stateChanged, this, slot);
    return box;
}

QLineEdit* DialogGraphSetup::limitEdit(const QString& text, const char* name,
                                       void (DialogGraphSetup::*slot)(const QString&))
{
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    edit->setAccessibleName(text);
    edit->setPlaceholderText(text);
    // As wide as the dialog leaves room for: what an editor asks for would widen it.
    edit->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    edit->setMinimumWidth(kLimitWidth);
    auto* validator = new QDoubleValidator(edit);
    validator->setLocale(QLocale::c()); // the text is read with a decimal point in any language
    edit->setValidator(validator);
    connect(edit, &QLineEdit::textChanged, this, slot);
    return edit;
}

void DialogGraphSetup::updateDialog()
{
    const QScopedValueRollback<bool> updating(mUpdating, true);
    mBackColor->setColor(QColor(QString::fromStdString(mData.backColor)));
    mGridColor->setColor(QColor(QString::fromStdString(mData.gridColor)));
    mLabelColor->setColor(QColor(QString::fromStdString(mData.labelColor)));
    mLabelBackColor->setColor(QColor(QString::fromStdString(mData.labelBackColor)));
    const auto state = [](bool on) { return on ? Qt::Checked : Qt::Unchecked; };
    mGridOn->setCheckState(state(mData.gridOn));
    mCursorOn->setCheckState(state(mData.cursorOn));
    mCursorMode->setCurrentIndex(mData.cursorMode);
    mLegendOn->setCheckState(state(mData.legendOn));
    mAutoscaleOn->setCheckState(state(mData.autoScaleOn));
    mYmin->setText(QStringLiteral("%1").arg(mData.yMin));
    mYmax->setText(QStringLiteral("%1").arg(mData.yMax));
    showScale();
}

void DialogGraphSetup::showEvent(QShowEvent* event)
{
    updateDialog();
    QDialog::showEvent(event);
}

/// Limits that have no effect cannot be edited, and say why.
void DialogGraphSetup::showScale()
{
    for (QLineEdit* edit : {mYmin, mYmax}) {
        edit->setEnabled(!mData.autoScaleOn);
        edit->setToolTip(mData.autoScaleOn ? tr("Switch autoscale off to set the scale by hand.")
                                           : edit->accessibleName());
    }
}

void DialogGraphSetup::chooseColor(std::string& color, ColorButton* button)
{
    const QColor chosen =
        QColorDialog::getColor(QColor(QString::fromStdString(color)), this, windowTitle());
    if (!chosen.isValid()) {
        return;
    }
    color = chosen.name().toStdString();
    button->setColor(chosen);
    emit signalChanged();
}

void DialogGraphSetup::setSwitch(bool& value, int state)
{
    if (!mUpdating) {
        value = state == Qt::Checked;
        emit signalChanged();
    }
}

void DialogGraphSetup::setLimit(double& value, const QString& text)
{
    const double number = text.toDouble();
    if (!mUpdating && std::isfinite(number)) {
        value = number;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotBackgroundColor()
{
    chooseColor(mData.backColor, mBackColor);
}

void DialogGraphSetup::slotGridOn(int state)
{
    setSwitch(mData.gridOn, state);
}

void DialogGraphSetup::slotGridColor()
{
    chooseColor(mData.gridColor, mGridColor);
}

void DialogGraphSetup::slotLabelColor()
{
    chooseColor(mData.labelColor, mLabelColor);
}

void DialogGraphSetup::slotLabelBackColor()
{
    chooseColor(mData.labelBackColor, mLabelBackColor);
}

void DialogGraphSetup::slotCursorOn(int state)
{
    setSwitch(mData.cursorOn, state);
}

void DialogGraphSetup::slotCursorMode(int mode)
{
    if (!mUpdating) {
        mData.cursorMode = mode;
        emit signalChanged();
    }
}

void DialogGraphSetup::slotLegendOn(int state)
{
    setSwitch(mData.legendOn, state);
}

void DialogGraphSetup::slotAutoscaleOn(int state)
{
    setSwitch(mData.autoScaleOn, state);
    showScale();
}

void DialogGraphSetup::slotYmin(const QString& text)
{
    setLimit(mData.yMin, text);
}

void DialogGraphSetup::slotYmax(const QString& text)
{
    setLimit(mData.yMax, text);
}

void DialogGraphSetup::slotClose()
{
    hide();
}

} // namespace VELIX

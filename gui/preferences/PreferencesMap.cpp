#include "gui/preferences/PreferencesMap.h"

#include "core/MapSettings.h"
#include "gui/look/Spacing.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr double kLargest = 10.0;
constexpr double kStep = 0.1;
constexpr int kSmallestCache = 50;   // MB
constexpr int kLargestCache = 20000; // MB
constexpr int kCacheStep = 50;       // MB

} // namespace

PreferencesMap::PreferencesMap(QWidget* parent)
    : QWidget(parent),
      mTileServer(new QLineEdit(this)),
      mShading(new QCheckBox(tr("&Shade the terrain"), this))
{
    mTileServer->setObjectName(QStringLiteral("tileServer"));
    mTileServer->setToolTip(tr("Base address of the server; zoom, x and y of a tile follow"));
    mShading->setObjectName(QStringLiteral("mapShading"));
    connect(mTileServer, &QLineEdit::editingFinished, this, &PreferencesMap::signalChanged);
    connect(mShading, &QCheckBox::toggled, this, [this] {
        enableShading();
        emit signalChanged();
    });
    auto* defaults = new QPushButton(tr("&Defaults"), this);
    defaults->setObjectName(QStringLiteral("buttonMapDefaults"));
    connect(defaults, &QPushButton::clicked, this, &PreferencesMap::slotDefaults);

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setHorizontalSpacing(Spacing::kGroup);
    form->setVerticalSpacing(Spacing::kMargin);
    form->addRow(tr("&Tile server"), mTileServer);
    mCacheLimit = addCacheLimit(*form);
    form->addRow(QString(), mShading);
    mContrast = addNumber(*form, tr("&Contrast"), "mapContrast");
    mBrightness = addNumber(*form, tr("&Brightness"), "mapBrightness");
    mFactor = addNumber(*form, tr("F&actor"), "mapFactor");
    form->addRow(QString(), defaults);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addStretch(1);
    setTabOrder(mTileServer, mCacheLimit);
    setTabOrder(mCacheLimit, mShading);
    setTabOrder(mFactor, defaults);
}

QSpinBox* PreferencesMap::addCacheLimit(QFormLayout& form)
{
    auto* box = new QSpinBox(this);
    box->setObjectName(QStringLiteral("tileCacheLimit"));
    box->setSingleStep(kCacheStep);
    box->setSuffix(tr(" MB"));
    box->setKeyboardTracking(false); // on the way to 1000, 100 is not a value to keep
    box->setToolTip(tr("When it is full, the tiles unused for longest make way"));
    connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &PreferencesMap::signalChanged);
    form.addRow(tr("Dis&k space for tiles"), box);
    return box;
}

QDoubleSpinBox* PreferencesMap::addNumber(QFormLayout& form, const QString& label, const char* name)
{
    auto* box = new QDoubleSpinBox(this);
    box->setObjectName(QLatin1String(name));
    box->setRange(0.0, kLargest);
    box->setSingleStep(kStep);
    box->setKeyboardTracking(false); // a half-typed number is not a value to keep
    connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &PreferencesMap::signalChanged);
    form.addRow(label, box);
    return box;
}

void PreferencesMap::showSettings(const MapSettings& map)
{
    const QSignalBlocker blocker(this);
    mTileServer->setText(QString::fromStdString(map.tileServer));
    // A limit that was written by hand stays, also an unusual one.
    mCacheLimit->setRange(qMin(kSmallestCache, map.cacheLimit),
                          qMax(kLargestCache, map.cacheLimit));
    mCacheLimit->setValue(map.cacheLimit);
    mShading->setChecked(map.shading);
    mContrast->setValue(map.contrast);
    mBrightness->setValue(map.brightness);
    mFactor->setValue(map.factor);
    enableShading();
}

MapSettings PreferencesMap::values() const
{
    MapSettings map;
    map.tileServer = mTileServer->text().trimmed().toStdString();
    map.cacheLimit = mCacheLimit->value();
    map.shading = mShading->isChecked();
    map.contrast = mContrast->value();
    map.brightness = mBrightness->value();
    map.factor = mFactor->value();
    return map;
}

void PreferencesMap::enableShading()
{
    const QString reason = mShading->isChecked() ? QString() : tr("The terrain is not shaded");
    for (QDoubleSpinBox* box : {mContrast, mBrightness, mFactor}) {
        box->setEnabled(mShading->isChecked());
        box->setToolTip(reason);
    }
}

void PreferencesMap::slotDefaults()
{
    showSettings(MapSettings());
    emit signalChanged();
}

} // namespace VELIX

#include "views/map/DialogDataMap.h"

#include "card/CardContainer.h"
#include "gui/look/ImageHandler.h"
#include "gui/look/Palette.h"
#include "profile/DataType.h"
#include "profile/Profile.h"
#include "views/map/MapMenu.h"
#include "views/map/MapValues.h"
#include "views/map/WidgetMap.h"
#include "views/map/model/MapColoring.h"
#include "views/map/model/MapTexts.h"
#include "views/map/model/MapTrack.h"

#include <QAction>
#include <QButtonGroup>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr int kEdge = 10;
constexpr int kGap = 8;
constexpr int kIconSize = 24;
constexpr int kLeastWidth = 200;
constexpr int kHintMargin = 8;

/// Ids of the commands that stay down.
enum EMapCommand { eMapCenter = 0 };

const char* const kPanelStyle = ".QWidget{background-color: #66ffffff;border-radius:10px;}";
const char* const kPanelStyleDark = ".QWidget{background-color: #66000000;border-radius:10px;}";
const char* const kToolBarStyle = ".QToolBar{background-color: #00ffffff;border-radius:10px;}";

bool isDark()
{
    return Palette::current().look == Palette::Look::Dark;
}

QString rgba(const QColor& color, double alpha)
{
    return QStringLiteral("rgba(%1, %2, %3, %4%)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(std::lround(alpha * 100.0));
}

} // namespace

DialogDataMap::DialogDataMap(const Profile& profile, const CardContainer& card, Property& settings,
                             const std::string& dataPath, QWidget* parent)
    : QWidget(parent), mProfile(profile), mCard(card), mSelection(settings)
{
    mMap = new WidgetMap(this, mContext, settings, dataPath);
    mMap->setObjectName(QStringLiteral("map"));
    connect(mMap, &WidgetMap::signalUpdateMode, this, &DialogDataMap::slotUpdateMode);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mMap);
    createOverlay();
    createTools();
    updateProfile();
}

DialogDataMap::~DialogDataMap()
{
    delete mMap; // before the context that it refers to
}

void DialogDataMap::createOverlay()
{
    mPanel = new QWidget(this);
    mPanel->setObjectName(QStringLiteral("mapPanel"));
    mPanel->setStyleSheet(QLatin1String(isDark() ? kPanelStyleDark : kPanelStyle));
    // Wheel and drag are meant for the map below.
    mPanel->setAttribute(Qt::WA_TransparentForMouseEvents);
    mValues = new MapValues(mPanel);
    auto* layout = new QVBoxLayout(mPanel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mValues);

    mHint = new QLabel(this);
    mHint->setObjectName(QStringLiteral("mapHint"));
    mHint->setWordWrap(true);
    mHint->setAlignment(Qt::AlignCenter);
    mHint->setMargin(kHintMargin);
    mHint->setAttribute(Qt::WA_TransparentForMouseEvents);
    mHint->setStyleSheet(QStringLiteral("QLabel{background-color: %1;border-radius:10px;}")
                             .arg(rgba(Palette::current().surface, 0.85)));
}

void DialogDataMap::createTools()
{
    mToolBar = new QToolBar(this);
    mToolBar->setObjectName(QStringLiteral("mapToolBar"));
    const QColor surface = Palette::current().surface;
    // The bar lets the map through, so its buttons have a background of their own.
    mToolBar->setStyleSheet(QLatin1String(kToolBarStyle) +
                            QStringLiteral(".QToolBar{border: none;padding: 0px;}"
                                           "QToolButton{background-color: %1;}"
                                           "QToolButton:hover{background-color: %2;}"
                                           "QToolButton:checked{background-color: %3;}")
                                .arg(rgba(surface, 0.85), rgba(Palette::current().hover, 1.0),
                                     rgba(Palette::current().accentSoft, 1.0)));
    mToolBar->setIconSize({kIconSize, kIconSize});
    mToolBar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    mCommands = new QButtonGroup(this);
    mCommands->setExclusive(false);
    connect(mCommands, &QButtonGroup::idToggled, this, &DialogDataMap::slotCommandToggled);

    const ImageHandler& images = ImageHandler::instance();
    mCenter = mToolBar->addAction(images.icon(QStringLiteral("map-center")), tr("Center AC"));
    mCenter->setObjectName(QStringLiteral("actionCenterAc"));
    mCenter->setCheckable(true);
    mCenter->setToolTip(tr("Center AC: keep the aircraft in the middle of the map"));
    mCommands->addButton(qobject_cast<QToolButton*>(mToolBar->widgetForAction(mCenter)),
                         eMapCenter);
    mFit = mToolBar->addAction(images.icon(QStringLiteral("zoom-fit")), tr("Show Whole Path"));
    mFit->setObjectName(QStringLiteral("actionFitPath"));
    connect(mFit, &QAction::triggered, this, [this] {
        mContext.centreAircraft = false; // which would move the map away again
        slotUpdateMode();
        mMap->fitFlightPath();
    });
    for (QAction* action : {mCenter, mFit}) {
        action->setIconVisibleInMenu(false); // it would be shown instead of the tick
        QWidget* button = mToolBar->widgetForAction(action);
        button->setAccessibleName(action->text());
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the map
    }
}

// --- the record

void DialogDataMap::updateRecord(RecordData* record)
{
    mRecord = record;
    takePath();
    mMap->setRecordData(record);
    fillDataValue();
    if (record != nullptr) {
        setMinimumWidth(kLeastWidth);
    }
}

void DialogDataMap::takePath()
{
    mMap->setFlightPath(mRecord != nullptr ? &mCard.flightPath() : nullptr);
    colorPath();
    updateHint();
}

void DialogDataMap::setTime(double seconds)
{
    mMap->setAcPosition(calcPositionAtTime(seconds));
    mTime = seconds;
    fillDataValue();
}

void DialogDataMap::updateProfile()
{
    fillDataLabel();
    mMap->setImperial(mProfile.currentUnit() == eUnitImperial);
    takePath();
}

FlightPathPoint DialogDataMap::calcPositionAtTime(double seconds) const
{
    if (mRecord == nullptr) {
        return {};
    }
    return MapTrack::positionAt(mCard.flightPath(), mRecord->startTime, mRecord->stopTime, seconds);
}

void DialogDataMap::colorPath()
{
    if (mRecord == nullptr) {
        mMap->setColoring({});
        return;
    }
    const ProfileParameter* parameter = mSelection.color(mProfile);
    const std::vector<FlightPathPoint>& path = mCard.flightPath();
    mMap->setColoring(parameter != nullptr
                          ? MapColoring::byParameter(path, *mRecord, mProfile, *parameter)
                          : MapColoring::byAltitude(path, mProfile.currentUnit() == eUnitImperial));
}

void DialogDataMap::updateHint()
{
    const bool path = mRecord != nullptr && !mCard.flightPath().empty();
    mFit->setEnabled(path);
    mCenter->setEnabled(path);
    if (mRecord == nullptr) {
        showHint(tr("No record open. Load a cycle or a flight to see its path."));
    } else {
        showHint(path ? QString() : tr("This record has no positions."));
    }
}

void DialogDataMap::showHint(const QString& sentence)
{
    mHint->setText(sentence);
    mHint->setVisible(!sentence.isEmpty());
    updateGeometry();
}

// --- values

void DialogDataMap::fillDataLabel()
{
    mEntries.clear();
    std::vector<MapValues::Row> rows;
    for (const ProfileParameter* parameter : mSelection.values(mProfile)) {
        DataEntry entry;
        entry.parameter = parameter;
        entry.label = MapTexts::label(mProfile, *parameter) + QLatin1Char(':');
        fillEntry(entry);
        rows.push_back({entry.label, entry.value, entry.color});
        mEntries.push_back(entry);
    }
    mValues->setRows(std::move(rows));
    updateGeometry();
}

void DialogDataMap::fillDataValue()
{
    for (std::size_t i = 0; i < mEntries.size(); ++i) {
        fillEntry(mEntries[i]);
        mValues->setValue(i, mEntries[i].value, mEntries[i].color);
    }
}

/// The value that was last heard of at the cursor; before the first one that one.
void DialogDataMap::fillEntry(DataEntry& entry) const
{
    entry.value = QStringLiteral("-");
    entry.color = QColor();
    if (mRecord == nullptr) {
        return;
    }
    const EntryList& samples = mRecord->entries(*entry.parameter);
    if (samples.empty()) {
        return;
    }
    const std::size_t after = std::max<std::size_t>(samples.firstAfter(mTime), 1);
    int state = 0;
    QColor color;
    // A sample of its own: the true position, wherever the cursor was before.
    const ParameterSample sample(samples[after - 1], *entry.parameter);
    const auto [text, unit] = textOf(sample, state, color);
    entry.value = unit.isEmpty() ? text : text + QChar(0x2009) + unit;
    entry.color = state != 0 ? color : QColor(); // a value in its green band needs no attention
}

/// In the unit system in use, also whole numbers: beside the legend and the instrument panel one
/// value is not to come in two units.
DialogDataMap::TextAndUnit DialogDataMap::textOf(const ParameterSample& sample, int& state,
                                                 QColor& color) const
{
    const ProfileParameter& parameter = sample.parameter();
    const NumberFormat format = mProfile.format(parameter);
    const EExtraction extraction = extractionOf(parameter.dataType);
    const bool isWhole = extraction != EExtraction::None && extraction != EExtraction::Float;
    if (isWhole && parameter.enumId == 0 && format.isConverted()) {
        const double value = mProfile.decoder().number(sample, state, color);
        return {QString::number(value, 'f', format.decimals()),
                format.unit(NumberFormat::EUnitOf::Number)};
    }
    return {mProfile.decoder().text(sample, state, color),
            format.unit(NumberFormat::EUnitOf::Text)};
}

// --- commands

void DialogDataMap::slotCommandToggled(int id, bool checked)
{
    if (id == eMapCenter) {
        mContext.centreAircraft = checked;
    }
    mMap->update();
}

void DialogDataMap::slotUpdateMode()
{
    mCenter->setChecked(mContext.centreAircraft);
}

void DialogDataMap::contextMenuEvent(QContextMenuEvent* event)
{
    MapMenu menu(mProfile, mSelection, this);
    connect(&menu, &MapMenu::signalValuesChanged, this, &DialogDataMap::fillDataLabel);
    connect(&menu, &MapMenu::signalColorChanged, this, &DialogDataMap::colorPath);
    menu.addSeparator();
    menu.addAction(mCenter);
    menu.addAction(mFit);
    QAction* shading = menu.addAction(tr("Shade Terrain"));
    shading->setCheckable(true);
    shading->setChecked(mContext.shading);
    shading->setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
    shading->setShortcutVisibleInContextMenu(true);
    connect(shading, &QAction::toggled, this, [this](bool on) {
        mContext.shading = on;
        mMap->update();
    });
    menu.exec(event->globalPos());
}

// --- layout

void DialogDataMap::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateGeometry();
}

bool DialogDataMap::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry(); // the panel grew
    } else if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        if (mPanel->isVisible() && mPanel->geometry().contains(help.pos())) {
            QToolTip::showText(help.globalPos(),
                               tr("Right click: choose values and the colour of the path"), this,
                               mPanel->geometry());
            return true;
        }
    }
    return QWidget::event(event);
}

void DialogDataMap::updateGeometry()
{
    if (mToolBar == nullptr) {
        return;
    }
    mPanel->setVisible(!mEntries.empty());
    const QSize panel = mEntries.empty() ? QSize(0, 0) : mValues->sizeHint();
    mPanel->setGeometry(QRect(QPoint(kEdge, kEdge), panel));
    const QSize bar = mToolBar->sizeHint();
    const bool beside = kEdge + panel.width() + kGap + bar.width() + kEdge <= width();
    const QPoint place = mEntries.empty() ? QPoint(kEdge, kEdge)
                         : beside         ? QPoint(kEdge + panel.width() + kGap, kEdge)
                                          : QPoint(kEdge, kEdge + panel.height() + kGap);
    mToolBar->setGeometry(QRect(place, bar));
    mMap->setToolsBottom(mToolBar->geometry().bottom());

    const int widest = std::max(width() - 2 * kEdge, 1);
    // A label that may wrap asks for less than its text needs.
    const int text = mHint->fontMetrics().horizontalAdvance(mHint->text());
    const int across = std::min(text + 2 * (kHintMargin + 1), widest);
    const int high = mHint->heightForWidth(across);
    mHint->setGeometry((width() - across) / 2, (height() - high) / 2, across, high);
}

} // namespace VELIX

#include "views/replay/ReplayControls.h"

#include "gui/look/ImageHandler.h"
#include "gui/look/Palette.h"
#include "views/common/CursorTime.h"
#include "views/replay/PositionSlider.h"

#include <QDateTime>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QGridLayout>
#include <QLCDNumber>
#include <QScopedValueRollback>
#include <QSlider>
#include <QTimeEdit>
#include <QToolButton>

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kIconSize = 32;
constexpr int kControlWidth = 120; // unless a large font needs more
constexpr int kGap = 8;
constexpr int kSpeedScale = 100; // steps of the speed slider per unit of the speed
constexpr double kSpeedMin = 1.0;
constexpr double kSpeedMax = 100.0;

QLCDNumber* createDisplay(const QString& placeholder, const QString& name)
{
    auto* display = new QLCDNumber(placeholder.size());
    const Palette& colors = Palette::current();
    QPalette palette = display->palette();
    palette.setColor(QPalette::Window, colors.lcdPanel);
    for (const auto role : {QPalette::WindowText, QPalette::Light, QPalette::Dark}) {
        palette.setColor(role, colors.lcdDigits);
    }
    display->setPalette(palette);
    display->setAutoFillBackground(true);
    display->setFrameStyle(QFrame::NoFrame);
    display->setSegmentStyle(QLCDNumber::Filled);
    display->setMinimumSize(220, 60);
    display->setAccessibleName(name);
    display->setToolTip(name);
    return display;
}

/// A screen reader cannot read what a display shows, so its description has the same text.
void showText(QLCDNumber* display, const QString& text)
{
    if (display->accessibleDescription() != text) {
        display->display(text);
        display->setAccessibleDescription(text);
    }
}

QToolButton* createReplayButton(const QString& icon)
{
    auto* button = new QToolButton;
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setIconSize({kIconSize, kIconSize});
    button->setIcon(ImageHandler::instance().icon(icon));
    button->setAutoRaise(true);
    return button;
}

/// Makes room for every text that the button will show, so that it keeps its width.
void reserveWidth(QToolButton* button, const QStringList& texts)
{
    const QFontMetrics metrics = button->fontMetrics();
    int widest = 0;
    for (const QString& text : texts) {
        widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    button->setMinimumWidth(button->sizeHint().width() - metrics.horizontalAdvance(button->text()) +
                            widest);
}

} // namespace

ReplayControls::ReplayControls(bool emuOnly, QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(createDisplays());
    layout->addLayout(createGrid());
    connectControls();

    mTimeDisplay->setVisible(!emuOnly);
    mPositionSlider->setVisible(!emuOnly);
    mTimeEdit->setVisible(!emuOnly);
    fitWidths();
    setRecordOpen(false);
}

void ReplayControls::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        // The controls get a new font after their parent.
        QMetaObject::invokeMethod(this, &ReplayControls::fitWidths, Qt::QueuedConnection);
    }
}

void ReplayControls::fitWidths()
{
    const int speed = std::max(kControlWidth, mSpeedBox->sizeHint().width());
    mSpeedBox->setFixedWidth(speed);
    mSpeedSlider->setFixedWidth(speed);
    mTimeEdit->setFixedWidth(std::max(kControlWidth, mTimeEdit->sizeHint().width()));
    reserveWidth(mReplayButton, replayTexts());
}

QLayout* ReplayControls::createDisplays()
{
    mDateTimeDisplay = createDisplay(CursorTime::dateTimePlaceholder(), tr("Date and time (UTC)"));
    mDateTimeDisplay->setObjectName(QStringLiteral("displayDateTime"));
    mTimeDisplay = createDisplay(CursorTime::timePlaceholder(), tr("Time of the cursor"));
    mTimeDisplay->setObjectName(QStringLiteral("displayTime"));
    auto* row = new QHBoxLayout;
    row->addWidget(mDateTimeDisplay, 3);
    row->addWidget(mTimeDisplay, 2);
    return row;
}

QLayout* ReplayControls::createGrid()
{
    createButtons();
    createSliders();
    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    grid->setContentsMargins(kGap, 0, kGap, kGap);
    grid->addWidget(mReplayButton, 0, 0, 2, 1);
    grid->addWidget(mStopButton, 0, 1, 2, 1);
    auto* sliderRow = new QHBoxLayout;
    sliderRow->setContentsMargins(kGap, 0, kGap, 0); // keeps it apart from the slider of the speed
    sliderRow->addWidget(mPositionSlider);
    grid->addLayout(sliderRow, 0, 2);
    grid->addWidget(mSpeedSlider, 0, 3);
    auto* editRow = new QHBoxLayout;
    editRow->addStretch(1);
    editRow->addWidget(mTimeEdit);
    editRow->addStretch(1);
    grid->addLayout(editRow, 1, 2);
    grid->addWidget(mSpeedBox, 1, 3);
    grid->setColumnStretch(2, 1);
    return grid;
}

void ReplayControls::createButtons()
{
    mReplayButton = createReplayButton(QStringLiteral("replay-start"));
    mReplayButton->setObjectName(QStringLiteral("buttonReplay"));
    mReplayButton->setText(replayTexts()[eReplayStopped]);
    mStopButton = createReplayButton(QStringLiteral("replay-stop"));
    mStopButton->setObjectName(QStringLiteral("buttonStop"));
    mStopButton->setText(tr("Replay Stop"));
    mStopButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ReplayControls::createSliders()
{
    mPositionSlider = new PositionSlider;
    mPositionSlider->setObjectName(QStringLiteral("sliderPosition"));
    mPositionSlider->setRange(0, CursorTime::kSliderSteps);
    mPositionSlider->setPageStep(CursorTime::kSliderSteps / 100);
    mPositionSlider->setAccessibleName(tr("Position in the record"));

    mTimeEdit = new QTimeEdit;
    mTimeEdit->setObjectName(QStringLiteral("editTime"));
    mTimeEdit->setDisplayFormat(QStringLiteral("hh:mm:ss"));
    mTimeEdit->setTimeSpec(Qt::UTC);
    mTimeEdit->setAccessibleName(tr("Time of the cursor"));

    mSpeedSlider = new QSlider(Qt::Horizontal);
    mSpeedSlider->setObjectName(QStringLiteral("sliderSpeed"));
    mSpeedSlider->setRange(static_cast<int>(kSpeedMin) * kSpeedScale,
                           static_cast<int>(kSpeedMax) * kSpeedScale);
    mSpeedSlider->setSingleStep(kSpeedScale);
    mSpeedSlider->setPageStep(10 * kSpeedScale);
    mSpeedSlider->setAccessibleName(tr("Replay speed"));

    mSpeedBox = new QDoubleSpinBox;
    mSpeedBox->setObjectName(QStringLiteral("boxSpeed"));
    mSpeedBox->setRange(kSpeedMin, kSpeedMax);
    mSpeedBox->setPrefix(tr("Speed "));
    mSpeedBox->setAccessibleName(tr("Replay speed"));
}

void ReplayControls::connectControls()
{
    connect(mReplayButton, &QToolButton::clicked, this, &ReplayControls::signalMode);
    connect(mStopButton, &QToolButton::clicked, this, &ReplayControls::signalStop);
    connect(mPositionSlider, &QSlider::valueChanged, this, [this](int position) {
        if (!mUpdating) {
            emit signalSlider(position);
        }
    });
    connect(mTimeEdit, &QTimeEdit::timeChanged, this, [this](const QTime& time) {
        if (!mUpdating) {
            emit signalValue(time);
        }
    });
    connect(mSpeedSlider, &QSlider::valueChanged, this, [this](int percent) {
        if (!mUpdating) {
            emit signalSpeed(percent);
        }
    });
    connect(mSpeedBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            [this](double factor) {
                if (!mUpdating) {
                    emit signalSpeed(factor);
                }
            });
}

/// The texts of the replay button; the replay state is the index.
QStringList ReplayControls::replayTexts()
{
    return {tr("Replay Start"), tr("Replay Pause"), tr("Replay Run")};
}

void ReplayControls::showReplay(const ReplayClock& clock)
{
    const QScopedValueRollback<bool> updating(mUpdating, true);
    const bool running = clock.state() == eReplayRunning;
    mReplayButton->setText(replayTexts()[clock.state()]);
    mReplayButton->setIcon(ImageHandler::instance().icon(running ? QStringLiteral("replay-pause")
                                                                 : QStringLiteral("replay-start")));
    mStopButton->setEnabled(mOpen && clock.state() != eReplayStopped);
    mSpeedSlider->setValue(static_cast<int>(kSpeedScale * clock.speed()));
    mSpeedBox->setValue(clock.speed());
}

void ReplayControls::showCursor(const ReplayClock& clock, const QDateTime& start)
{
    const QScopedValueRollback<bool> updating(mUpdating, true);
    const double cursor = clock.cursor();
    const qint64 ms = CursorTime::milliseconds(cursor);
    showText(mDateTimeDisplay, CursorTime::dateTimeText(start, cursor));
    showText(mTimeDisplay, CursorTime::timeText(ms));
    mTimeEdit->setTime(CursorTime::timeOfDay(ms));

    // A slider that already shows this very time stays: rounding would push it back.
    const int position = CursorTime::sliderPosition(clock.start(), clock.stop(), cursor);
    const double shown =
        CursorTime::sliderTime(clock.start(), clock.stop(), mPositionSlider->value());
    if (position >= 0 && shown != cursor) {
        mPositionSlider->setValue(position);
    }
}

void ReplayControls::setRecordOpen(bool open)
{
    mOpen = open;
    const auto enable = [open](QWidget* control, const QString& tip) {
        control->setEnabled(open);
        control->setToolTip(open ? tip : tr("Load a cycle, a flight or a file to replay it"));
    };
    enable(mReplayButton, tr("Start or pause the replay (Space)"));
    enable(mStopButton, tr("End the replay and return to the start of the record"));
    enable(mPositionSlider, tr("Position in the record (Ctrl+Left, Ctrl+Right: one second, "
                               "with Shift: ten seconds)"));
    enable(mTimeEdit, tr("Time of the cursor"));
    enable(mSpeedSlider, tr("Replay speed, 1 to 100 times real time"));
    enable(mSpeedBox, tr("Replay speed, 1 to 100 times real time"));
    if (!open) {
        showText(mDateTimeDisplay, CursorTime::dateTimePlaceholder());
        showText(mTimeDisplay, CursorTime::timePlaceholder());
    }
}

} // namespace VELIX

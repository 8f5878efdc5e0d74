#include "views/panel/DialogDataView.h"

#include "card/CardContainer.h"
#include "core/DataHandler.h"
#include "core/Diagnostics.h"
#include "gui/look/WidgetHint.h"
#include "platform/viewlib/VistaView.h"
#include "profile/Profile.h"

#include <QColor>
#include <QGridLayout>
#include <QKeyEvent>

#include <GL/gl.h>

#include <algorithm>
#include <cmath>

namespace VELIX {

namespace {

constexpr int kUpdatePeriod = 1000; // ms

} // namespace

DialogDataView::DialogDataView(const Profile& profile, CardContainer& card,
                               const DataHandler& paths, QWidget* parent)
    : QOpenGLWidget(parent),
      mProfile(profile),
      mCard(card),
      mPaths(paths),
      mView(std::make_unique<Vista2D::VistaView>()),
      mHint(new WidgetHint(this))
{
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(tr("Instrument panel"));
    mHint->setAutoFillBackground(true);
    connect(mHint, &WidgetHint::signalLink, this, &DialogDataView::signalInstallProfile);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mHint, 0, 0);

    mUpdateTimer.setInterval(kUpdatePeriod);
    connect(&mUpdateTimer, &QTimer::timeout, this, &DialogDataView::slotTimeoutUpdate);
    mUpdateTimer.start();
    updateProfile();
}

DialogDataView::~DialogDataView() = default;

void DialogDataView::setTime(double seconds)
{
    mTime = seconds;
    updateView();
}

void DialogDataView::updateRecord(RecordData* record)
{
    mHasRecord = record != nullptr;
    blankView();
    updateHint();
    updateView();
}

void DialogDataView::updateProfile()
{
    blankView();
    mParameters = viewParameters(mProfile);
    if (mStarted) {
        loadView();
    }
    updateHint();
    updateView();
}

/// Removes the last values, which belong to another record, unit system or variant.
void DialogDataView::blankView()
{
    for (const ViewParameter& shown : mParameters) {
        mView->setVar(shown.viewId.c_str(), std::nan(""));
        mView->setVar(shown.stateId.c_str(), 0L);
        mView->setVar(shown.missingId.c_str(), 0L);
    }
}

void DialogDataView::updateView()
{
    mView->setVar("VARIANT", static_cast<long>(variantNumber()));
    mView->setVar("UNIT", static_cast<long>(mProfile.currentUnit()));
    if (mHasRecord) {
        for (const ViewParameter& shown : mParameters) {
            const EntryList& entries = mCard.loadedData().entries(shown.parameter);
            // Without any entry the value is 0, which must not look like a measured one.
            mView->setVar(shown.missingId.c_str(), entries.empty() ? 1L : 0L);
            int state = 0;
            QColor color;
            const double value = valueAtCursor(shown.parameter, entries, state, color);
            if (!std::isnan(value)) {
                mView->setVar(shown.viewId.c_str(), value);
                mView->setVar(shown.stateId.c_str(), static_cast<long>(state));
            }
        }
    }
    if (mView->changed()) {
        update();
    }
}

/// Returns the last value after the last entry, where a look-up would find 0.
double DialogDataView::valueAtCursor(const ProfileParameter& p, const EntryList& entries,
                                     int& state, QColor& color)
{
    if (entries.empty() || entries.firstAtOrAfter(mTime) < entries.size()) {
        return mCard.getValue(p, mTime, state, color);
    }
    return mProfile.decoder().number(ParameterSample(entries.back(), p), state, color);
}

/// Returns the number that the current variant's entry in the profile has as its id.
int DialogDataView::variantNumber() const
{
    for (const ProfileVariant& variant : mProfile.variants()) {
        if (variant.name == mProfile.currentVariant()) {
            return variant.id.toInt();
        }
    }
    return 0;
}

void DialogDataView::slotTimeoutUpdate()
{
    updateView();
    calcParameters();
}

/// Would set values that are computed from others; this panel has none.
void DialogDataView::calcParameters() {}

void DialogDataView::init()
{
    mStarted = true;
    mView->startView(1);
    mView->setBackgroundMode(0);
    loadView();
    updateView();
}

void DialogDataView::loadView()
{
    const std::string file = mPaths.resourcePath() + "views/instruments.v";
    const bool isRead = mView->load(file);
    if (isRead) {
        reportErrors(file);
    } else {
        Diagnostics::print("could not open file <%s>\n", file.c_str());
    }
    const bool isKnown =
        std::any_of(mParameters.begin(), mParameters.end(),
                    [this](const ViewParameter& shown) { return mView->knows(shown.viewId); });
    if (!isRead || !isKnown) {
        mView->loadText(generatedPanel(mProfile, mParameters));
        reportErrors("generated panel");
    }
    const QColor color = QColor::fromRgba(mView->background());
    mBackground = {static_cast<float>(color.redF()), static_cast<float>(color.greenF()),
                   static_cast<float>(color.blueF()), 1.0F};
    calcFit();
}

void DialogDataView::reportErrors(const std::string& file) const
{
    for (const Vista2D::ViewError& error : mView->errors()) {
        Diagnostics::print("DialogDataView::loadView: <%s> line %d, %s: %s\n", file.c_str(),
                           error.line, error.element.c_str(), error.message.c_str());
    }
}

void DialogDataView::calcFit()
{
    mView->setRoom(width(), height());
    mFit = ViewFit::of(width(), height(), mView->width(), mView->height());
}

void DialogDataView::initializeGL()
{
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    resizeGL(width(), height());
}

void DialogDataView::resizeGL(int width, int height)
{
    const double ratio = devicePixelRatioF();
    glViewport(0, 0, qRound(width * ratio), qRound(height * ratio));
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    calcFit();
}

void DialogDataView::paintGL()
{
    if (!mStarted) {
        init();
    }
    glClearColor(mBackground[0], mBackground[1], mBackground[2], mBackground[3]);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    // The unit is a pixel of the widget, the origin its upper left corner.
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, width(), height(), 0.0, -1.0, 1.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glTranslated(mFit.offsetX, mFit.offsetY, 0.0);
    glScaled(mFit.scale, mFit.scale, 1.0);
    mView->draw(1);
}

void DialogDataView::trackKey(int key, bool isDown)
{
    switch (key) {
    case Qt::Key_Shift:
        mHeldKeys.setFlag(Qt::ShiftModifier, isDown);
        break;
    case Qt::Key_Control:
        mHeldKeys.setFlag(Qt::ControlModifier, isDown);
        break;
    case Qt::Key_Alt:
        mHeldKeys.setFlag(Qt::AltModifier, isDown);
        break;
    default:
        break;
    }
}

void DialogDataView::keyPressEvent(QKeyEvent* event)
{
    trackKey(event->key(), true);
    QOpenGLWidget::keyPressEvent(event);
}

void DialogDataView::keyReleaseEvent(QKeyEvent* event)
{
    trackKey(event->key(), false);
    QOpenGLWidget::keyReleaseEvent(event);
}

/// Forgets held keys, since the view gets no event when they are released elsewhere.
void DialogDataView::focusOutEvent(QFocusEvent* event)
{
    mHeldKeys = Qt::NoModifier;
    QOpenGLWidget::focusOutEvent(event);
}

/// Says what is missing where instruments would show the last record, or nothing.
void DialogDataView::updateHint()
{
    WidgetHint::Message missing;
    if (mProfile.isEmpty()) {
        missing = WidgetHint::withoutProfile();
    } else if (!mHasRecord) {
        missing = WidgetHint::withoutRecord();
    }
    mHint->showInsteadOf(nullptr, missing);
}

} // namespace VELIX

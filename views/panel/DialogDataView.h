#pragma once

#include "views/common/DataView.h"
#include "views/panel/GeneratedPanel.h"
#include "views/panel/ViewFit.h"

#include <QOpenGLWidget>
#include <QTimer>

#include <array>
#include <memory>
#include <string>
#include <vector>

class DataHandler;

namespace Vista2D {
class VistaView;
}

namespace VELIX {

class CardContainer;
class EntryList;
class Profile;
class WidgetHint;

/// Shows the engine's own display at the cursor: a panel of instruments, drawn from a view
/// description, whose variables are the parameters that name them.
///
/// A profile that names none of the panel's variables gets a panel of plain figures instead.
class DialogDataView : public QOpenGLWidget, public DataView
{
    Q_OBJECT

public:
    using ViewParameter = VELIX::ViewParameter;

    DialogDataView(const Profile& profile, CardContainer& card, const DataHandler& paths,
                   QWidget* parent = nullptr);
    ~DialogDataView() override;

    void setTime(double seconds) override;
    void updateRecord(RecordData* record) override;
    void updateProfile() override;

    /// Gives the values at the cursor to the panel. A value that is not a number is left out, so
    /// that its instrument stays at the last value since the record and profile were taken.
    void updateView();

    [[nodiscard]] const ViewFit& fit() const { return mFit; }
    /// Returns which of Shift, Ctrl and Alt are down, according to the key events of the view.
    [[nodiscard]] Qt::KeyboardModifiers heldKeys() const { return mHeldKeys; }

signals:
    /// The user followed the link of a sentence that says what is missing.
    void signalInstallProfile();

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private slots:
    void slotTimeoutUpdate();

private:
    void init();
    void calcParameters();
    void loadView();
    void blankView();
    void reportErrors(const std::string& file) const;
    void calcFit();
    void updateHint();
    void trackKey(int key, bool isDown);
    [[nodiscard]] int variantNumber() const;
    double valueAtCursor(const ProfileParameter& p, const EntryList& entries, int& state,
                         QColor& color);

    const Profile& mProfile;
    CardContainer& mCard;
    const DataHandler& mPaths;
    std::unique_ptr<Vista2D::VistaView> mView;
    bool mStarted = false; ///< the view is loaded on the first paint, when there is a context
    ViewFit mFit;
    std::array<float, 4> mBackground{}; ///< red, green, blue, alpha
    std::vector<ViewParameter> mParameters;
    double mTime = 0.0; ///< s on the record's time axis
    QTimer mUpdateTimer;
    Qt::KeyboardModifiers mHeldKeys = Qt::NoModifier;
    bool mHasRecord = false;
    WidgetHint* mHint = nullptr;
};

} // namespace VELIX

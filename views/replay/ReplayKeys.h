#pragma once

#include <QObject>

#include <vector>

class QKeySequence;
class QShortcut;
class QWidget;

namespace VELIX {

/// The keys that move the cursor from anywhere in the window.
///
/// Shortcuts would take them from a widget that has its own use for them. Editors claim their keys
/// themselves; this class claims the space bar for buttons, lists with check boxes and the like.
class ReplayKeys : public QObject
{
    Q_OBJECT

public:
    /// The keys work in the window that the widget is in.
    explicit ReplayKeys(QWidget* widget);

    void setEnabled(bool enabled);
    /// Whether a widget that has the focus uses the space bar itself.
    static bool usesSpace(const QWidget* widget);

signals:
    void signalToggle();
    void signalStep(double seconds);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QShortcut* addShortcut(const QKeySequence& keys);
    void addStep(const QKeySequence& keys, double seconds);

    QWidget* mWidget;
    std::vector<QShortcut*> mShortcuts;
};

} // namespace VELIX

#pragma once

#include <QWidget>

class QAbstractButton;
class QAction;
class QBoxLayout;
class QButtonGroup;
class QToolButton;

namespace VELIX {

/// What the buttons of the graph view do; the numbers are their ids in the button group.
enum EGraphCommand : int {
    eGraphZoomIn = 0,
    eGraphZoomOut = 1,
    eGraphZoomAll = 2,
    eGraphZoomMarker = 3,
    eGraphClear = 4,
    eGraphAuto = 5,
    eGraphSplit = 6,
    eGraphSingle = 7,
    eGraphReset = 8,
    eGraphSetup = 9,
    eGraphSnapshot = 10,
    eGraphNoCommand = 99
};

/// The row of buttons above the graph.
class GraphCommandBar : public QWidget
{
    Q_OBJECT

public:
    explicit GraphCommandBar(QWidget* parent = nullptr);

    /// The command buttons, by EGraphCommand.
    QButtonGroup* group() const { return mGroup; }
    bool isChecked(EGraphCommand command) const;
    void setChecked(EGraphCommand command, bool checked);

    // Beyond the commands: the way through the visited ranges, the table of values and the kinds
    // of snapshots.
    QAction* backAction() const { return mBack; }
    QAction* forwardAction() const { return mForward; }
    QAction* statisticAction() const { return mStatistic; }
    QAction* saveAction() const { return mSave; }
    QAction* copyAction() const { return mCopy; }

private:
    void createCommands();
    void createActions();
    void createSnapshotMenu();
    void startGroup();
    QToolButton* addButton(const QString& tip);

    QButtonGroup* mGroup;
    QBoxLayout* mRow = nullptr; ///< of the group of buttons that is being made
    QAction* mBack = nullptr;
    QAction* mForward = nullptr;
    QAction* mStatistic = nullptr;
    QAction* mSave = nullptr;
    QAction* mCopy = nullptr;
};

} // namespace VELIX

#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>

#include <list>

class QStackedWidget;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace VELIX {

class CardContainer;
class WidgetHint;

/// The panel in which the user browses a card: power cycles with their flights, and record files.
///
/// A selection asks the main window to load it once it has rested for half a second.
class DialogCard : public QWidget
{
    Q_OBJECT

public:
    explicit DialogCard(CardContainer& card, QWidget* parent = nullptr);

    /// Lists the card again; nothing is selected then.
    void reloadCardInfo();
    void updateInfoPowerCycles();
    void updateInfoRaw();
    /// Shows the flights of a cycle below it; they are known once the cycle has been loaded.
    void addFlights(unsigned int cycle);

signals:
    /// Load exactly these record files, given by path.
    void signalLoadRecord(const std::list<QString>& files);
    /// Load a cycle (flightId -1) or one of its flights (from 0).
    void signalLoadCycle(unsigned int cycleId, int flightId);
    void signalChanged();
    /// The user wants to open a card.
    void signalOpenCard();

private slots:
    void slotSelect();
    void slotSelectCycle();
    void slotTimeout();
    void slotTimeoutLoadCycle();

private:
    QTreeWidget* createCycleTree();
    QTreeWidget* createRawTree();
    void createTimers();
    void createLayout();
    void updateHint();
    QTreeWidgetItem* cycleItem(unsigned int cycle) const;

    CardContainer& mCard;
    std::list<QString> mFiles; ///< paths of the selected record files
    unsigned int mCycle = 0;
    int mFlight = -1; ///< -1: the whole cycle
    QTimer mTimerRecord;
    QTimer mTimerCycle;
    QTreeWidget* mTreeCycles;
    QTreeWidget* mTreeRaw;
    QTabWidget* mTabs;
    WidgetHint* mHint;
    QStackedWidget* mPages;
};

} // namespace VELIX

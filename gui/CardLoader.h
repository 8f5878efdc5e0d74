#pragma once

#include "core/Outcome.h"
#include "core/Progress.h"
#include "gui/print/PrintHeader.h"

#include <QObject>
#include <QString>

#include <functional>
#include <list>

namespace VELIX {

class CardContainer;
class DialogCard;
class DialogData;
class DialogStatusBar;

/// Opens cards and loads from them, and reports its progress and the outcome in the status bar.
///
/// The event loop is blocked meanwhile; the status bar repaints the window.
class CardLoader : public QObject
{
    Q_OBJECT

public:
    CardLoader(CardContainer& card, DialogCard& browser, DialogData& views, DialogStatusBar& bar,
               QObject* parent = nullptr);

    /// Lists the card in the browser; what is loaded stays. False, with a notice, if that failed.
    bool openCard(const QString& path);
    void loadFiles(const std::list<QString>& files);
    /// flight: -1 for the whole cycle.
    void loadCycle(unsigned int cycle, int flight);

    /// Names what is loaded, for a printed page.
    PrintHeader printHeader() const;

private:
    void load(const std::function<QString()>& name, const std::function<Outcome(Progress&)>& job);
    /// Moves the bar of the status bar.
    Progress shownProgress();
    void showLoaded();

    /// What the views show.
    struct Loaded
    {
        QString text; ///< the name with the numbers of samples and identifiers
        QString card;
        QString name;
    };

    CardContainer& mCard;
    DialogCard& mBrowser;
    DialogData& mViews;
    DialogStatusBar& mStatusBar;
    Loaded mLoaded;
};

} // namespace VELIX

#include "gui/CardLoader.h"

#include "card/CardContainer.h"
#include "gui/DialogStatusBar.h"
#include "gui/LoadSummary.h"
#include "gui/card/DialogCard.h"
#include "views/window/DialogData.h"

#include <QApplication>

namespace VELIX {

namespace {

constexpr int kDone = 100;

/// The busy cursor and the progress bar while one exists.
class Work
{
public:
    Work(DialogStatusBar& bar, const QString& text) : mBar(bar)
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        mBar.beginWork(text);
    }
    ~Work()
    {
        mBar.setProgress(kDone);
        mBar.endWork();
        QApplication::restoreOverrideCursor();
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

private:
    DialogStatusBar& mBar;
};

} // namespace

CardLoader::CardLoader(CardContainer& card, DialogCard& browser, DialogData& views,
                       DialogStatusBar& bar, QObject* parent)
    : QObject(parent), mCard(card), mBrowser(browser), mViews(views), mStatusBar(bar)
{}

bool CardLoader::openCard(const QString& path)
{
    const Work work(mStatusBar, tr("Reading the card %1...").arg(path));
    Progress progress = shownProgress();
    const Outcome outcome = mCard.readContainer(path, progress);
    if (!outcome.ok) {
        mStatusBar.showNotice(outcome.reason);
        return false;
    }
    mBrowser.reloadCardInfo();
    mStatusBar.showNotice({});
    showLoaded();
    return true;
}

void CardLoader::loadFiles(const std::list<QString>& files)
{
    const auto name = [&] { return LoadSummary::files(files.size()); };
    load(name, [&](Progress& progress) { return mCard.loadFiles(files, progress); });
}

void CardLoader::loadCycle(unsigned int cycle, int flight)
{
    const auto name = [&] { return LoadSummary::cycle(mCard, cycle, flight); };
    load(name, [&](Progress& progress) { return mCard.loadCycle(cycle, flight, progress); });
}

/// name: of what is loaded; a cycle whose flights are not known yet has another one afterwards.
void CardLoader::load(const std::function<QString()>& name,
                      const std::function<Outcome(Progress&)>& job)
{
    const Work work(mStatusBar, tr("Loading %1...").arg(name()));
    mViews.releaseRecord();
    Progress progress = shownProgress();
    const Outcome outcome = job(progress);
    mViews.updateRecord();

    // A load that failed may have left what was loaded before.
    if (!mCard.hasRecord()) {
        mLoaded = {};
    } else if (outcome.ok) {
        mLoaded = {LoadSummary::withCounts(name(), mCard), mCard.name(), name()};
    }
    showLoaded();
    mStatusBar.showNotice(outcome.reason);
}

PrintHeader CardLoader::printHeader() const
{
    return PrintHeader::of(mCard.recordData(), mLoaded.card, mLoaded.name);
}

Progress CardLoader::shownProgress()
{
    return Progress([this](int percent) {
        mStatusBar.setProgress(percent);
        return true;
    });
}

/// Another card may have been opened since; then the views still show the one before.
void CardLoader::showLoaded()
{
    const bool otherCard = !mLoaded.text.isEmpty() && mLoaded.card != mCard.name();
    mStatusBar.showLoaded(otherCard ? tr("%1 of card %2").arg(mLoaded.text, mLoaded.card)
                                    : mLoaded.text);
}

} // namespace VELIX

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
    if (!mCard.readContainer(path)) {
        mStatusBar.showNotice(
            tr("The folder %1 cannot be opened. Is the card in its reader?").arg(path));
        return false;
    }
    mBrowser.reloadCardInfo();
    mStatusBar.showNotice({});
    showLoaded();
    return true;
}

void CardLoader::loadFiles(const std::list<QString>& files)
{
    load(LoadSummary::files(files.size()), [&] {
        return mCard.loadFiles(files) != 0 ? LoadSummary::files(files.size()) : QString();
    });
}

void CardLoader::loadCycle(unsigned int cycle, int flight)
{
    load(LoadSummary::cycle(mCard, cycle, flight), [&] {
        return mCard.loadCycle(cycle, flight) != 0 ? LoadSummary::cycle(mCard, cycle, flight)
                                                   : QString();
    });
}

/// job: loads and names what is loaded then; empty if that failed.
void CardLoader::load(const QString& text, const std::function<QString()>& job)
{
    const Work work(mStatusBar, tr("Loading %1...").arg(text));
    const RecordData* before = &mCard.loadedData();
    mViews.releaseRecord();
    const QString name = job();
    mViews.updateRecord();

    // A load that the card refused leaves what was loaded before.
    const bool replaced = &mCard.loadedData() != before;
    if (!mCard.hasRecord()) {
        mLoaded = {};
    } else if (replaced && !name.isEmpty()) {
        mLoaded = {LoadSummary::withCounts(name, mCard), mCard.name(), name};
    }
    showLoaded();
    mStatusBar.showNotice(mCard.lastError());
}

/// Another card may have been opened since; then the views still show the one before.
void CardLoader::showLoaded()
{
    const bool otherCard = !mLoaded.text.isEmpty() && mLoaded.card != mCard.name();
    mStatusBar.showLoaded(otherCard ? tr("%1 of card %2").arg(mLoaded.text, mLoaded.card)
                                    : mLoaded.text);
}

} // namespace VELIX

#include "gui/help/DialogHelp.h"

#include "core/Property.h"
#include "gui/help/HelpBrowser.h"
#include "gui/look/BringToFront.h"
#include "gui/look/ImageHandler.h"
#include "gui/look/Palette.h"
#include "gui/look/Spacing.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>

using VELIX::HelpBrowser;
using VELIX::HelpHit;
using VELIX::HelpManual;
using VELIX::HelpPage;
using VELIX::HelpSection;
using VELIX::Palette;

namespace Spacing = VELIX::Spacing;

namespace {

constexpr const char* kWidthKey = "HelpWidth";
constexpr const char* kHeightKey = "HelpHeight";
constexpr const char* kTextSizeKey = "HelpTextSize";
constexpr int kWidth = 980;
constexpr int kHeight = 720;
constexpr int kLeastWidth = 560;
constexpr int kLeastHeight = 360;
constexpr int kContentsWidth = 240;
constexpr int kSearchWidth = 240;
constexpr int kIconSize = 24;
constexpr int kDefaultFont = 12;
constexpr int kReadingBonus = 2; ///< running text is larger than labels
constexpr int kTopicRole = Qt::UserRole;
constexpr int kAnchorRole = Qt::UserRole + 1;

enum LeftPage { eContents, eResults, eNothing };

QTreeWidgetItem* addItem(QTreeWidgetItem* item, const QString& topic, const QString& anchor)
{
    item->setData(0, kTopicRole, topic);
    item->setData(0, kAnchorRole, anchor);
    return item;
}

QIcon icon(const char* name)
{
    return ImageHandler::instance().icon(QLatin1String(name));
}

/// The arrows of the style sheet: those of the icon set lead from page to page.
QIcon arrow(const char* direction)
{
    const bool dark = Palette::current().look == Palette::Look::Dark;
    return QIcon(QStringLiteral(":/styles/%1-%2.svg")
                     .arg(QLatin1String(direction),
                          dark ? QStringLiteral("dark") : QStringLiteral("light")));
}

} // namespace

DialogHelp::DialogHelp(VELIX::Property& settings, QWidget* parent)
    : QDialog(parent),
      mSettings(settings),
      mManual(HelpManual::folderOf(QString::fromStdString(settings.getString("Locale", {}))))
{
    setWindowTitle(tr("VELIX Help"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    setMinimumSize(kLeastWidth, kLeastHeight);
    createContents();
    createPages();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Spacing::kMargin, Spacing::kMargin, Spacing::kMargin,
                               Spacing::kMargin);
    layout->setSpacing(Spacing::kMargin);
    layout->addLayout(createBar());
    layout->addWidget(mSplitter, 1);
    createKeys();
    resize(settings.getInt(kWidthKey, kWidth), settings.getInt(kHeightKey, kHeight));
    slotSearch({});
    connect(qApp, &QCoreApplication::aboutToQuit, this, &DialogHelp::rememberSize);
}

void DialogHelp::createContents()
{
    mContents = new QTreeWidget(this);
    mContents->setObjectName(QStringLiteral("helpContents"));
    mContents->setAccessibleName(tr("Contents"));
    mContents->setHeaderHidden(true);
    for (const HelpPage& page : mManual.pages()) {
        auto* item =
            addItem(new QTreeWidgetItem(mContents, QStringList(page.title)), page.topic, {});
        for (const HelpSection& section : page.sections) {
            if (!section.anchor.isEmpty()) {
                addItem(new QTreeWidgetItem(item, QStringList(section.title)), page.topic,
                        section.anchor);
            }
        }
    }
    connect(mContents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr) {
            goTo(item->data(0, kTopicRole).toString(), item->data(0, kAnchorRole).toString());
        }
    });
}

void DialogHelp::createPages()
{
    mResults = new QListWidget(this);
    mResults->setObjectName(QStringLiteral("helpResults"));
    mResults->setAccessibleName(tr("Search results"));
    mResults->setWordWrap(true);
    mResults->setResizeMode(QListView::Adjust);
    mResults->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mResults->setSpacing(Spacing::kGap / 2);
    connect(mResults, &QListWidget::currentRowChanged, this, &DialogHelp::slotResult);
    mNothing = new QLabel(this);
    mNothing->setWordWrap(true);
    mNothing->setAlignment(Qt::AlignCenter);
    mNothing->setProperty("role", QStringLiteral("muted"));

    mLeft = new QStackedWidget(this);
    mLeft->addWidget(mContents);
    mLeft->addWidget(mResults);
    mLeft->addWidget(mNothing);

    const int font = mSettings.getInt("FontSize", kDefaultFont) + kReadingBonus;
    mBrowser = new HelpBrowser(mSettings.getInt(kTextSizeKey, font), this);
    mBrowser->setObjectName(QStringLiteral("helpPage"));
    mBrowser->setAccessibleName(tr("Page of the manual"));
    connect(mBrowser, &QTextBrowser::sourceChanged, this, &DialogHelp::slotPageChanged);

    mSplitter = new QSplitter(this);
    mSplitter->addWidget(mLeft);
    mSplitter->addWidget(mBrowser);
    mSplitter->setChildrenCollapsible(false);
    mSplitter->setStretchFactor(1, 1);
    mSplitter->setSizes({kContentsWidth, kWidth - kContentsWidth});
}

QToolButton* DialogHelp::addButton(QBoxLayout* row, const QIcon& icon, const QString& tip,
                                   const QKeySequence& key)
{
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setIconSize({kIconSize, kIconSize});
    button->setIcon(icon);
    // A shortcut of the button itself would press it visibly first, and so act late.
    connect(new QShortcut(key, this), &QShortcut::activated, button, &QToolButton::click);
    button->setToolTip(QStringLiteral("%1 (%2)").arg(tip, key.toString(QKeySequence::NativeText)));
    button->setAccessibleName(tip);
    row->addWidget(button);
    return button;
}

QBoxLayout* DialogHelp::createBar()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing::kGap);
    const auto keys = [](const char* text) { return QKeySequence(QLatin1String(text)); };

    QToolButton* back = addButton(row, icon("history-back"), tr("Previous page"), keys("Alt+Left"));
    QToolButton* forward =
        addButton(row, icon("history-forward"), tr("Next page"), keys("Alt+Right"));
    connect(back, &QToolButton::clicked, mBrowser, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, mBrowser, &QTextBrowser::forward);
    connect(mBrowser, &QTextBrowser::backwardAvailable, back, &QToolButton::setEnabled);
    connect(mBrowser, &QTextBrowser::forwardAvailable, forward, &QToolButton::setEnabled);
    back->setEnabled(false);
    forward->setEnabled(false);
    row->addSpacing(Spacing::kGroup - Spacing::kGap);
    QToolButton* smaller = addButton(row, icon("zoom-out"), tr("Smaller text"), keys("Ctrl+-"));
    QToolButton* larger = addButton(row, icon("zoom-in"), tr("Larger text"), keys("Ctrl++"));
    connect(smaller, &QToolButton::clicked, this, [this] { zoom(mBrowser->textSize() - 1); });
    connect(larger, &QToolButton::clicked, this, [this] { zoom(mBrowser->textSize() + 1); });
    row->addStretch();

    mCount = new QLabel(this);
    mCount->setProperty("role", QStringLiteral("muted"));
    row->addWidget(mCount);
    mSearch = new QLineEdit(this);
    mSearch->setObjectName(QStringLiteral("helpSearch"));
    mSearch->setPlaceholderText(tr("Search the manual"));
    mSearch->setAccessibleName(mSearch->placeholderText());
    mSearch->setClearButtonEnabled(true);
    mSearch->setFixedWidth(kSearchWidth);
    mSearch->addAction(ImageHandler::instance().icon(QStringLiteral("search")),
                       QLineEdit::LeadingPosition);
    row->addWidget(mSearch);
    mPrevious = addButton(row, arrow("up"), tr("Previous hit"), keys("Shift+F3"));
    mNext = addButton(row, arrow("down"), tr("Next hit"), keys("F3"));
    connect(mSearch, &QLineEdit::textChanged, this, &DialogHelp::slotSearch);
    connect(mSearch, &QLineEdit::returnPressed, this, &DialogHelp::slotNextMark);
    connect(mPrevious, &QToolButton::clicked, this, &DialogHelp::slotPreviousMark);
    connect(mNext, &QToolButton::clicked, this, &DialogHelp::slotNextMark);
    return row;
}

void DialogHelp::createKeys()
{
    const auto add = [this](const QKeySequence& key, const auto& action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    add(QKeySequence(QKeySequence::Find), [this] {
        mSearch->setFocus(Qt::ShortcutFocusReason);
        mSearch->selectAll();
    });
    add(QKeySequence(QStringLiteral("Ctrl+=")), [this] { zoom(mBrowser->textSize() + 1); });
    add(QKeySequence(QStringLiteral("Ctrl+0")),
        [this] { zoom(mSettings.getInt("FontSize", kDefaultFont) + kReadingBonus); });
}

void DialogHelp::showPage(const QString& topic)
{
    if (!mManual.pages().empty()) {
        const HelpPage* page = mManual.page(topic);
        goTo(page != nullptr ? topic : mManual.pages().front().topic, {});
    }
    VELIX::bringToFront(*this);
    mBrowser->setFocus();
}

void DialogHelp::goTo(const QString& topic, const QString& anchor)
{
    QUrl address;
    address.setScheme(QStringLiteral("qrc"));
    address.setPath(mManual.folder().mid(1) + QLatin1Char('/') + topic + QStringLiteral(".html"));
    if (!anchor.isEmpty()) {
        address.setFragment(anchor);
    }
    if (address != mBrowser->source()) {
        mBrowser->setSource(address);
    }
}

void DialogHelp::slotPageChanged(const QUrl& address)
{
    const QString topic = QFileInfo(address.path()).baseName();
    const QSignalBlocker quiet(mContents);
    for (int i = 0; i < mContents->topLevelItemCount(); ++i) {
        QTreeWidgetItem* page = mContents->topLevelItem(i);
        const bool open = page->data(0, kTopicRole).toString() == topic;
        page->setExpanded(open);
        if (!open) {
            continue;
        }
        QTreeWidgetItem* current = page;
        for (int k = 0; k < page->childCount(); ++k) {
            if (page->child(k)->data(0, kAnchorRole).toString() == address.fragment()) {
                current = page->child(k);
            }
        }
        mContents->setCurrentItem(current);
        mContents->scrollToItem(current);
    }
    showCount();
}

void DialogHelp::slotSearch(const QString& text)
{
    const QStringList words = HelpManual::wordsOf(text);
    mHits = mManual.search(text);
    {
        const QSignalBlocker quiet(mResults);
        mResults->clear();
        for (const HelpHit& hit : mHits) {
            const QString& page = mManual.pages()[hit.page].title;
            const QString title =
                hit.anchor.isEmpty() ? page : QStringLiteral("%1 › %2").arg(page, hit.title);
            mResults->addItem(title + QLatin1Char('\n') + hit.snippet);
        }
    }
    mNothing->setText(tr("The manual says nothing about \"%1\". Try fewer or shorter words.")
                          .arg(text.simplified()));
    mLeft->setCurrentIndex(words.isEmpty() ? eContents : mHits.empty() ? eNothing : eResults);
    mPrevious->setEnabled(!mHits.empty());
    mNext->setEnabled(!mHits.empty());
    mBrowser->setMarkedWords(words);
    showCount();
}

void DialogHelp::slotResult(int row)
{
    if (row < 0 || row >= static_cast<int>(mHits.size())) {
        return;
    }
    const HelpHit& hit = mHits[static_cast<std::size_t>(row)];
    goTo(mManual.pages()[hit.page].topic, hit.anchor);
    mBrowser->goToMarkOfSection();
    showCount();
}

void DialogHelp::slotNextMark()
{
    stepMark(1);
}

void DialogHelp::slotPreviousMark()
{
    stepMark(-1);
}

void DialogHelp::stepMark(int step)
{
    if (mHits.empty()) {
        return;
    }
    if (mResults->currentRow() < 0) {
        mResults->setCurrentRow(0);
    } else if (!mBrowser->goToMark(mBrowser->currentMark() + step) && !stepResult(step)) {
        mBrowser->goToMark(step > 0 ? 0 : mBrowser->markCount() - 1); // the only page with hits
    }
    showCount();
}

/// Goes to the next or previous result on another page, past the ends of the list as well.
bool DialogHelp::stepResult(int step)
{
    const int count = static_cast<int>(mHits.size());
    const int start = mResults->currentRow();
    const auto pageOf = [this](int row) { return mHits[static_cast<std::size_t>(row)].page; };
    for (int i = 1; i < count; ++i) {
        const int row = (start + step * i + count * i) % count;
        if (pageOf(row) != pageOf(start)) {
            mResults->setCurrentRow(row);
            mBrowser->goToMark(step > 0 ? 0 : mBrowser->markCount() - 1);
            return true;
        }
    }
    return false;
}

void DialogHelp::showCount()
{
    const int count = mBrowser->markCount();
    mCount->setText(mHits.empty() || count == 0 ? QString()
                    : mBrowser->currentMark() < 0
                        ? tr("%1 on this page").arg(count)
                        : tr("%1 of %2 on this page").arg(mBrowser->currentMark() + 1).arg(count));
}

void DialogHelp::zoom(int pixels)
{
    mBrowser->setTextSize(pixels);
    mSettings.setInt(kTextSizeKey, mBrowser->textSize());
}

void DialogHelp::rememberSize()
{
    if (mSettings.getInt(kWidthKey, 0) == width() && mSettings.getInt(kHeightKey, 0) == height() &&
        mSettings.getInt(kTextSizeKey, 0) == mBrowser->textSize()) {
        return;
    }
    mSettings.setInt(kWidthKey, width());
    mSettings.setInt(kHeightKey, height());
    mSettings.setInt(kTextSizeKey, mBrowser->textSize());
    mSettings.writeXmlFile();
}

void DialogHelp::hideEvent(QHideEvent* event)
{
    rememberSize();
    QDialog::hideEvent(event);
}

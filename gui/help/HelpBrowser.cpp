#include "gui/help/HelpBrowser.h"

#include "gui/look/Palette.h"
#include "gui/look/StyleHandler.h"

#include <QFile>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace VELIX {

namespace {

constexpr int kPageMargin = 24;
constexpr int kTitlePercent = 170;
constexpr int kHeadingPercent = 125;
constexpr int kSmallPercent = 88;

QString pageStyle(int textSize)
{
    QFile file(QStringLiteral(":/help/help.css"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const auto percent = [&](int value) {
        return QStringLiteral("%1px").arg(textSize * value / 100);
    };
    QString text = QString::fromUtf8(file.readAll());
    text.replace(QStringLiteral("@titleSize"), percent(kTitlePercent))
        .replace(QStringLiteral("@headingSize"), percent(kHeadingPercent))
        .replace(QStringLiteral("@smallSize"), percent(kSmallPercent))
        .replace(QStringLiteral("@textSize"), percent(100));
    return StyleHandler::replaceNames(text, Palette::current());
}

/// Position of an anchor in the text; 0 for one that the page lacks.
int positionOf(const QTextDocument& page, const QString& anchor)
{
    if (anchor.isEmpty()) {
        return 0;
    }
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().anchorNames().contains(anchor)) {
                return part.fragment().position();
            }
        }
    }
    return 0;
}

} // namespace

HelpBrowser::HelpBrowser(int textSize, QWidget* parent)
    : QTextBrowser(parent), mTextSize(std::clamp(textSize, kSmallestText, kLargestText))
{
    setOpenExternalLinks(true);
    setTabChangesFocus(false); // Tab goes from link to link first
    document()->setDocumentMargin(kPageMargin);
    applyStyle();
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::findMarks);
}

void HelpBrowser::applyStyle()
{
    document()->setDefaultStyleSheet(pageStyle(mTextSize));
}

void HelpBrowser::setTextSize(int pixels)
{
    const int size = std::clamp(pixels, kSmallestText, kLargestText);
    if (size == mTextSize) {
        return;
    }
    mTextSize = size;
    const QScrollBar* bar = verticalScrollBar();
    const double position = bar->maximum() > 0 ? 1.0 * bar->value() / bar->maximum() : 0.0;
    const int mark = mCurrentMark;
    applyStyle();
    reload();
    findMarks();
    mCurrentMark = mark < markCount() ? mark : -1;
    showMarks();
    verticalScrollBar()->setValue(static_cast<int>(position * verticalScrollBar()->maximum()));
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    if (type == QTextDocument::HtmlResource) {
        mImages.clear();
        mImageWidth = viewport()->width() - 2 * kPageMargin;
    }
    QVariant content = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) {
        return content;
    }
    const QImage image = QImage::fromData(content.toByteArray());
    mImages.insert(name, image);
    return image.width() > mImageWidth && mImageWidth > 0
               ? image.scaledToWidth(mImageWidth, Qt::SmoothTransformation)
               : image;
}

void HelpBrowser::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    fitImages();
}

void HelpBrowser::fitImages()
{
    const int width = viewport()->width() - 2 * kPageMargin;
    const int previous = mImageWidth;
    if (width <= 0 || width == previous) {
        return;
    }
    mImageWidth = width;
    bool changed = false;
    for (auto image = mImages.cbegin(); image != mImages.cend(); ++image) {
        if (image->width() <= std::min(width, previous)) {
            continue;
        }
        document()->addResource(QTextDocument::ImageResource, image.key(),
                                image->width() > width
                                    ? image->scaledToWidth(width, Qt::SmoothTransformation)
                                    : *image);
        changed = true;
    }
    if (changed) {
        document()->markContentsDirty(0, document()->characterCount());
    }
}

void HelpBrowser::setMarkedWords(const QStringList& words)
{
    mWords = words;
    findMarks();
}

void HelpBrowser::findMarks()
{
    mMarks.clear();
    mCurrentMark = -1;
    for (const QString& word : std::as_const(mWords)) {
        for (QTextCursor found = document()->find(word); !found.isNull();
             found = document()->find(word, found)) {
            mMarks.append(found);
        }
    }
    std::sort(mMarks.begin(), mMarks.end(), [](const QTextCursor& a, const QTextCursor& b) {
        return a.selectionStart() < b.selectionStart();
    });
    showMarks();
}

void HelpBrowser::showMarks()
{
    const Palette& palette = Palette::current();
    QList<QTextEdit::ExtraSelection> selections;
    for (int i = 0; i < mMarks.size(); ++i) {
        const QColor background = i == mCurrentMark ? palette.accent : palette.warning;
        QTextEdit::ExtraSelection selection;
        selection.cursor = mMarks.at(i);
        selection.format.setBackground(background);
        selection.format.setForeground(i == mCurrentMark ? palette.accentText
                                                         : Palette::textOn(background));
        selections.append(selection);
    }
    setExtraSelections(selections);
}

bool HelpBrowser::goToMark(int mark)
{
    if (mark < 0 || mark >= markCount()) {
        return false;
    }
    mCurrentMark = mark;
    QTextCursor position = mMarks.at(mark);
    position.clearSelection();
    setTextCursor(position);
    ensureCursorVisible();
    showMarks();
    return true;
}

void HelpBrowser::goToMarkOfSection()
{
    const int start = positionOf(*document(), source().fragment());
    const auto first = std::find_if(mMarks.cbegin(), mMarks.cend(), [=](const QTextCursor& mark) {
        return mark.selectionStart() >= start;
    });
    goToMark(static_cast<int>(first - mMarks.cbegin()));
}

} // namespace VELIX

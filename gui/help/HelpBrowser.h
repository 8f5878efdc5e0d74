#pragma once

#include <QImage>
#include <QMap>
#include <QTextBrowser>
#include <QUrl>

namespace VELIX {

/// Shows one page of the manual in the program's colours: images never wider than the window,
/// texts at a size of the reader's choice, the words of a search marked.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    static constexpr int kSmallestText = 10; ///< pixels
    static constexpr int kLargestText = 32;  ///< pixels

    explicit HelpBrowser(int textSize, QWidget* parent = nullptr);

    /// Height of plain text in pixels; the page stays where it is.
    void setTextSize(int pixels);
    int textSize() const { return mTextSize; }

    /// Marks all occurrences on this page and on those that follow; none for no words.
    void setMarkedWords(const QStringList& words);
    int markCount() const { return static_cast<int>(mMarks.size()); }
    /// The mark that the reader is at, from 0; -1 for none.
    int currentMark() const { return mCurrentMark; }
    /// Goes to a mark. False, and nothing happens, if there is none of that number.
    bool goToMark(int mark);
    /// Goes to the first mark at or below the anchor of the page's address.
    void goToMarkOfSection();

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyStyle();
    void fitImages();
    void findMarks();
    void showMarks();

    int mTextSize;
    QMap<QUrl, QImage> mImages; ///< of the page, in their own size
    int mImageWidth = 0;        ///< that they are fitted to
    QStringList mWords;
    QList<QTextCursor> mMarks; ///< from top to bottom
    int mCurrentMark = -1;
};

} // namespace VELIX

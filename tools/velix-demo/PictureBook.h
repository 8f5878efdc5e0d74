#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

class QWidget;

namespace VELIX {

/// A folder of pictures that are named after what they show and the language they show it in.
class PictureBook
{
public:
    enum class Kind {
        Windows, ///< whole windows, as they are on screen: "graph-en.png"
        Manual   ///< single views, lists and dialogs for the manual's pages: "en/graph.png"
    };

    PictureBook(Kind kind, QString folder, QString language);

    Kind kind() const { return mKind; }

    /// Saves a widget as it looks now.
    [[nodiscard]] bool add(QWidget& widget, const QString& name, const QString& caption);
    /// Writes README.md: all pictures so far, in both languages, below their captions.
    [[nodiscard]] bool writeIndex() const;

private:
    Kind mKind;
    QString mFolder;
    QString mLanguage;
    QStringList mIndex; ///< lines
};

} // namespace VELIX

#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

class QWidget;

namespace VELIX {

/// Saves screenshots in a folder, named after what they show and the language they show it in.
class ScreenshotFolder
{
public:
    enum class Kind {
        Windows, ///< whole windows, as they are on screen
        Manual   ///< single views, lists and dialogs for the pages of the manual
    };

    ScreenshotFolder(Kind kind, QString folder, QString language);

    Kind kind() const { return mKind; }

    /// Saves a widget as it looks now; false if it cannot be written.
    [[nodiscard]] bool add(QWidget& widget, const QString& name, const QString& caption);
    /// Writes README.md: all screenshots so far, in both languages, below their captions.
    [[nodiscard]] bool writeIndex() const;

private:
    Kind mKind;
    QString mFolder;
    QString mLanguage;
    QStringList mIndex; ///< lines
};

} // namespace VELIX

#pragma once

#include <QColor>
#include <QString>

class QPrinter;
class QWidget;

namespace VELIX {

/// The questions that windows put to the user in boxes of their own: files, folders, yes or no.
///
/// Windows ask through this interface, so that tests can answer for the user.
class DialogService
{
public:
    enum class Answer { Yes, No, Cancel };

    virtual ~DialogService() = default;

    /// An existing file; empty if the user cancelled.
    virtual QString openFile(QWidget* parent, const QString& title, const QString& start,
                             const QString& filter) = 0;
    /// A file to write; empty if the user cancelled. A name without any suffix gets `suffix`, so
    /// that the question about an existing file is asked of the name that is written.
    virtual QString saveFile(QWidget* parent, const QString& title, const QString& start,
                             const QString& filter, const QString& suffix) = 0;
    /// An existing folder; empty if the user cancelled.
    virtual QString folder(QWidget* parent, const QString& title, const QString& start) = 0;

    /// Yes, No or Cancel on a warning; closing the box cancels.
    virtual Answer askToSave(QWidget* parent, const QString& title, const QString& text) = 0;
    /// True only if the user agrees; no is the default.
    virtual bool confirm(QWidget* parent, const QString& title, const QString& text) = 0;
    /// An information with two answers of its own; true for `accept`. Closing the box declines.
    virtual bool choose(QWidget* parent, const QString& title, const QString& text,
                        const QString& accept, const QString& decline) = 0;

    /// A colour, with `opacity` also how much it covers; invalid if the user cancelled.
    virtual QColor color(QWidget* parent, const QString& title, const QColor& start,
                         bool opacity) = 0;

    /// Lets the user choose a printer and set it up; false if the user cancelled.
    virtual bool choosePrinter(QWidget* parent, QPrinter& printer, const QString& title) = 0;

    virtual void information(QWidget* parent, const QString& title, const QString& text) = 0;
    virtual void warning(QWidget* parent, const QString& title, const QString& text) = 0;
    virtual void critical(QWidget* parent, const QString& title, const QString& text) = 0;
};

} // namespace VELIX

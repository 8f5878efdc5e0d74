#pragma once

#include "gui/dialogs/DialogService.h"

#include <QPrinter>
#include <QStringList>

namespace VELIX::Test {

/// Answers questions as a test has prepared and keeps what was asked, one "title: text" per box.
class FakeDialogs : public DialogService
{
public:
    QString file; ///< the next answer to a file or folder chooser; empty cancels
    Answer answer = Answer::Cancel;
    bool agrees = false;
    QStringList asked;

    QString openFile(QWidget*, const QString& title, const QString& start,
                     const QString& filter) override
    {
        return choose(title, start, filter);
    }
    QString saveFile(QWidget*, const QString& title, const QString& start, const QString& filter,
                     const QString&) override
    {
        return choose(title, start, filter);
    }
    QString folder(QWidget*, const QString& title, const QString& start) override
    {
        return choose(title, start, {});
    }
    Answer askToSave(QWidget*, const QString& title, const QString& text) override
    {
        note(title, text);
        return answer;
    }
    bool confirm(QWidget*, const QString& title, const QString& text) override
    {
        note(title, text);
        return agrees;
    }
    bool choose(QWidget*, const QString& title, const QString& text, const QString& accept,
                const QString& decline) override
    {
        note(title, QStringLiteral("%1 [%2|%3]").arg(text, accept, decline));
        return agrees;
    }
    QColor chosenColor; ///< the next answer to a colour chooser; invalid cancels
    QColor lastColor;   ///< with which the last colour chooser started
    bool lastOpacity = false;
    QColor color(QWidget*, const QString& title, const QColor& start, bool opacity) override
    {
        asked.append(title);
        lastColor = start;
        lastOpacity = opacity;
        return chosenColor;
    }
    /// The printer becomes one that prints to `file`.
    bool choosePrinter(QWidget*, QPrinter& printer, const QString& title) override
    {
        asked.append(title);
        lastStart = printer.docName();
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        return !file.isEmpty();
    }
    void information(QWidget*, const QString& title, const QString& text) override
    {
        note(title, text);
    }
    void warning(QWidget*, const QString& title, const QString& text) override
    {
        note(title, text);
    }
    void critical(QWidget*, const QString& title, const QString& text) override
    {
        note(title, text);
    }

    QString lastStart; ///< where the last chooser started
    QString lastFilter;

    /// What was asked since the last call.
    QStringList takeAsked()
    {
        QStringList taken;
        taken.swap(asked);
        return taken;
    }

private:
    QString choose(const QString& title, const QString& start, const QString& filter)
    {
        asked.append(title);
        lastStart = start;
        lastFilter = filter;
        return file;
    }
    void note(const QString& title, const QString& text)
    {
        asked.append(QStringLiteral("%1: %2").arg(title, text));
    }
};

} // namespace VELIX::Test

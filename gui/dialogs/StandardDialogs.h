#pragma once

#include "gui/dialogs/DialogService.h"

namespace VELIX {

/// Asks with the desktop's file dialogs and message boxes.
class StandardDialogs : public DialogService
{
public:
    static StandardDialogs& instance();

    QString openFile(QWidget* parent, const QString& title, const QString& start,
                     const QString& filter) override;
    QString saveFile(QWidget* parent, const QString& title, const QString& start,
                     const QString& filter, const QString& suffix) override;
    QString folder(QWidget* parent, const QString& title, const QString& start) override;

    Answer askToSave(QWidget* parent, const QString& title, const QString& text) override;
    bool confirm(QWidget* parent, const QString& title, const QString& text) override;
    bool choose(QWidget* parent, const QString& title, const QString& text, const QString& accept,
                const QString& decline) override;

    QColor color(QWidget* parent, const QString& title, const QColor& start, bool opacity) override;

    bool choosePrinter(QWidget* parent, QPrinter& printer, const QString& title) override;

    void information(QWidget* parent, const QString& title, const QString& text) override;
    void warning(QWidget* parent, const QString& title, const QString& text) override;
    void critical(QWidget* parent, const QString& title, const QString& text) override;
};

} // namespace VELIX

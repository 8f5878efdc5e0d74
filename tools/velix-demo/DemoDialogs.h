#pragma once

#include "gui/DialogService.h"

namespace VELIX {

/// Answers the program's questions for a user who is not there: agrees, chooses no files and
/// declines what is offered.
class DemoDialogs : public DialogService
{
public:
    QString openFile(QWidget* parent, const QString& title, const QString& start,
                     const QString& filter) override;
    QString saveFile(QWidget* parent, const QString& title, const QString& start,
                     const QString& filter, const QString& suffix) override;
    QString folder(QWidget* parent, const QString& title, const QString& start) override;
    Answer askToSave(QWidget* parent, const QString& title, const QString& text) override;
    bool confirm(QWidget* parent, const QString& title, const QString& text) override;
    bool choose(QWidget* parent, const QString& title, const QString& text, const QString& accept,
                const QString& decline) override;
    void information(QWidget* parent, const QString& title, const QString& text) override;
    void warning(QWidget* parent, const QString& title, const QString& text) override;
    void critical(QWidget* parent, const QString& title, const QString& text) override;

    /// What the program complained about; empty if it did not.
    const QString& complaint() const { return mComplaint; }

private:
    QString mComplaint;
};

} // namespace VELIX

#pragma once

#include <QDialog>

class QListWidget;
class QPlainTextEdit;

namespace VELIX {

/// Name, version and build of the program, and the licences of all that it is made with.
class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* createHeading();
    QWidget* createLicences();
    void showLicence(int row);

    QListWidget* mList = nullptr;
    QPlainTextEdit* mText = nullptr;
};

} // namespace VELIX

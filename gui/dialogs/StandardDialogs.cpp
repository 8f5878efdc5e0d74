#include "gui/dialogs/StandardDialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace VELIX {

StandardDialogs& StandardDialogs::instance()
{
    static StandardDialogs dialogs;
    return dialogs;
}

QString StandardDialogs::openFile(QWidget* parent, const QString& title, const QString& start,
                                  const QString& filter)
{
    return QFileDialog::getOpenFileName(parent, title, start, filter);
}

QString StandardDialogs::saveFile(QWidget* parent, const QString& title, const QString& start,
                                  const QString& filter, const QString& suffix)
{
    QFileDialog dialog(parent, title, start, filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return dialog.selectedFiles().value(0);
}

QString StandardDialogs::folder(QWidget* parent, const QString& title, const QString& start)
{
    return QFileDialog::getExistingDirectory(parent, title, start);
}

DialogService::Answer StandardDialogs::askToSave(QWidget* parent, const QString& title,
                                                 const QString& text)
{
    const auto button = QMessageBox::warning(
        parent, title, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
        QMessageBox::Yes);
    switch (button) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

bool StandardDialogs::confirm(QWidget* parent, const QString& title, const QString& text)
{
    return QMessageBox::question(parent, title, text, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

bool StandardDialogs::choose(QWidget* parent, const QString& title, const QString& text,
                             const QString& accept, const QString& decline)
{
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::NoButton, parent);
    const QPushButton* accepted = box.addButton(accept, QMessageBox::AcceptRole);
    QPushButton* declined = box.addButton(decline, QMessageBox::RejectRole);
    box.setDefaultButton(declined);
    box.setEscapeButton(declined);
    box.exec();
    return box.clickedButton() == accepted;
}

QColor StandardDialogs::color(QWidget* parent, const QString& title, const QColor& start,
                              bool opacity)
{
    QColorDialog::ColorDialogOptions options;
    options.setFlag(QColorDialog::ShowAlphaChannel, opacity);
    return QColorDialog::getColor(start, parent, title, options);
}

bool StandardDialogs::choosePrinter(QWidget* parent, QPrinter& printer, const QString& title)
{
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(title);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    return dialog.exec() == QDialog::Accepted;
}

void StandardDialogs::information(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox::information(parent, title, text);
}

void StandardDialogs::warning(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox::warning(parent, title, text);
}

void StandardDialogs::critical(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox::critical(parent, title, text);
}

} // namespace VELIX

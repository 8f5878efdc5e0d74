#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace VELIX {

class CardLoader;
class DialogService;
class Property;

/// Opens the card that the user chooses and remembers its folder for the next run.
class CardController : public QObject
{
    Q_OBJECT

public:
    /// window: the parent of the dialogs, and this object's owner.
    CardController(CardLoader& loader, Property& settings, DialogService& dialogs, QWidget* window);

    /// Asks for the folder of a card and opens it.
    void choose();
    /// Opens the card in a folder; does nothing more if that fails, which the status bar reports.
    void open(const QString& folder);

    /// The folder of the card that was opened last, in this run or one before; empty if none was.
    QString lastFolder() const;

signals:
    void signalOpened(const QString& folder);

private:
    CardLoader& mLoader;
    Property& mSettings;
    DialogService& mDialogs;
    QWidget* mWindow;
};

} // namespace VELIX

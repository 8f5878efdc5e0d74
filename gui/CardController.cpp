#include "gui/CardController.h"

#include "core/Property.h"
#include "gui/CardLoader.h"
#include "gui/dialogs/DialogService.h"

#include <QWidget>

namespace VELIX {

namespace {

constexpr const char* kLastPath = "LastPath";

} // namespace

CardController::CardController(CardLoader& loader, Property& settings, DialogService& dialogs,
                               QWidget* window)
    : QObject(window), mLoader(loader), mSettings(settings), mDialogs(dialogs), mWindow(window)
{}

void CardController::choose()
{
    const QString folder = mDialogs.folder(mWindow, tr("Open SD Card"), lastFolder());
    if (!folder.isEmpty()) {
        open(folder);
    }
}

void CardController::open(const QString& folder)
{
    if (mLoader.openCard(folder)) {
        mSettings.setString(kLastPath, folder.toStdString());
        mSettings.writeXmlFile();
        emit signalOpened(folder);
    }
}

QString CardController::lastFolder() const
{
    return QString::fromStdString(mSettings.getString(kLastPath, {}));
}

} // namespace VELIX

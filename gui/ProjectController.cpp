#include "gui/ProjectController.h"

#include "core/Property.h"
#include "gui/dialogs/DialogService.h"
#include "gui/project/Project.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace VELIX {

namespace {

constexpr const char* kLastProjectPath = "LastProjectPath";

bool isSamePath(const QString& a, const QString& b)
{
    return QDir::cleanPath(a) == QDir::cleanPath(b);
}

} // namespace

ProjectController::ProjectController(Project& project, Property& settings, DialogService& dialogs,
                                     QWidget* parent)
    : mProject(project), mSettings(settings), mDialogs(dialogs), mParent(parent)
{}

void ProjectController::start(const QString& runFile)
{
    mRunFile = runFile;
    mFile = runFile;
    remember(runFile);
}

Outcome ProjectController::readLast()
{
    const QString file = lastPath();
    if (mProject.readProject(file.toStdString()) != 0) {
        return Outcome::success();
    }
    // The run will overwrite this file: what could not be read is kept beside it.
    const QString kept = file + QStringLiteral(".broken");
    if (QFileInfo(file).isFile() && isSamePath(file, mRunFile)) {
        QFile::remove(kept);
        if (QFile::rename(file, kept)) {
            return Outcome::failure(
                tr("The project of the last run could not be read. It is kept as %1.").arg(kept));
        }
    }
    return Outcome::failure({});
}

void ProjectController::setModified()
{
    mModified = true;
    mRunFileOutdated = true;
}

Outcome ProjectController::newProject()
{
    Outcome saved = askSaveProject();
    if (saved.ok) {
        mProject.clear();
        mFile = mRunFile;
        mModified = false;
        mRunFileOutdated = true;
    }
    return saved;
}

Outcome ProjectController::openProject()
{
    Outcome saved = askSaveProject();
    if (!saved.ok) {
        return saved;
    }
    const QString file = mDialogs.openFile(mParent, tr("Open VELIX Project"), lastPath(),
                                           tr("Project Files (*.xml)"));
    return file.isEmpty() ? Outcome::cancellation() : read(file);
}

Outcome ProjectController::openFile(const QString& file)
{
    Outcome saved = askSaveProject();
    return saved.ok ? read(file) : saved;
}

bool ProjectController::isRunFile() const
{
    return isSamePath(mFile, mRunFile);
}

Outcome ProjectController::read(const QString& file)
{
    if (mProject.readProject(file.toStdString()) == 0) {
        return Outcome::failure(tr("%1 could not be read as a project.").arg(file));
    }
    Outcome outcome = Outcome::success();
    if (mProject.isProjectFile()) {
        mFile = file;
    } else {
        // Saving must not replace a profile, or whatever else this file is, by a project.
        mFile = mRunFile;
        outcome.reason = tr("%1 is not a VELIX project. Saving will not write to it.").arg(file);
    }
    mModified = false;
    mRunFileOutdated = !isSamePath(file, mRunFile);
    remember(mFile); // no other, since this is the name that saving under another one proposes
    return outcome;
}

Outcome ProjectController::saveProject(bool saveAs)
{
    const QString file = saveAs || mFile.isEmpty() ? askFileName() : mFile;
    if (file.isEmpty()) {
        return Outcome::cancellation();
    }
    if (mProject.saveProject(file.toStdString()) == 0) {
        return Outcome::failure(
            tr("The project could not be saved to %1.").arg(QDir::cleanPath(file)));
    }
    mFile = file;
    mModified = false;
    if (isSamePath(file, mRunFile)) {
        mRunFileOutdated = false;
    }
    remember(file);
    return Outcome::success();
}

void ProjectController::saveOnQuit()
{
    if (mRunFileOutdated && mProject.saveProject(mRunFile.toStdString()) != 0) {
        mModified = false;
        mRunFileOutdated = false;
    }
}

Outcome ProjectController::askSaveProject()
{
    if (!mModified) {
        return Outcome::success();
    }
    switch (mDialogs.askToSave(mParent, tr("VELIX Warning"),
                               tr("Current Project not saved !\nSave it now ?"))) {
    case DialogService::Answer::Yes:
        return saveProject(false);
    case DialogService::Answer::No:
        return Outcome::success();
    case DialogService::Answer::Cancel:
        break;
    }
    return Outcome::cancellation();
}

/// A name to save under; empty if the user cancelled.
QString ProjectController::askFileName()
{
    const QString suffix = QStringLiteral(".xml");
    QString file = mDialogs.saveFile(mParent, tr("Save VELIX Project"), lastPath(),
                                     tr("Project Files (*.xml)"), suffix.mid(1));
    if (!file.isEmpty() && !file.endsWith(suffix)) {
        file += suffix;
        // The file dialog asked about another name.
        if (QFileInfo::exists(file) &&
            !mDialogs.confirm(mParent, tr("VELIX Warning"),
                              tr("%1 exists already.\nReplace it ?").arg(file))) {
            return {};
        }
    }
    return file;
}

void ProjectController::remember(const QString& file)
{
    mSettings.setString(kLastProjectPath, file.toStdString());
    mSettings.writeXmlFile();
}

QString ProjectController::lastPath() const
{
    return QString::fromStdString(mSettings.getString(kLastProjectPath, {}));
}

} // namespace VELIX

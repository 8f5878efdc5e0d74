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

bool ProjectController::readLast()
{
    const QString file = lastPath();
    if (mProject.readProject(file.toStdString()) != 0) {
        return true;
    }
    // The run will write this file anew: what could not be read is kept beside it.
    const QString kept = file + QStringLiteral(".broken");
    if (QFileInfo(file).isFile() && isSamePath(file, mRunFile)) {
        QFile::remove(kept);
        if (QFile::rename(file, kept)) {
            mLastError =
                tr("The project of the last run could not be read. It is kept as %1.").arg(kept);
        }
    }
    return false;
}

void ProjectController::setModified()
{
    mModified = true;
    mRunFileOutdated = true;
}

bool ProjectController::newProject()
{
    if (!askSaveProject()) {
        return false;
    }
    mProject.clear();
    mFile = mRunFile;
    mModified = false;
    mRunFileOutdated = true;
    return true;
}

bool ProjectController::openProject()
{
    if (!askSaveProject()) {
        return false;
    }
    const QString file = mDialogs.openFile(mParent, tr("Open VELIX Project"), lastPath(),
                                           tr("Project Files (*.xml)"));
    return !file.isEmpty() && read(file);
}

bool ProjectController::openFile(const QString& file)
{
    return askSaveProject() && read(file);
}

bool ProjectController::isRunFile() const
{
    return isSamePath(mFile, mRunFile);
}

bool ProjectController::read(const QString& file)
{
    if (mProject.readProject(file.toStdString()) == 0) {
        mLastError = tr("%1 could not be read as a project.").arg(file);
        return false;
    }
    if (mProject.isProjectFile()) {
        mFile = file;
    } else {
        // Saving must not replace a profile, or whatever else this file is, by a project.
        mFile = mRunFile;
        mLastError = tr("%1 is not a VELIX project. Saving will not write to it.").arg(file);
    }
    mModified = false;
    mRunFileOutdated = !isSamePath(file, mRunFile);
    remember(mFile); // no other, since this is the name that saving under another one proposes
    return true;
}

bool ProjectController::saveProject(bool saveAs)
{
    mLastError.clear();
    QString file = mFile;
    if ((saveAs || file.isEmpty()) && !askFileName(file)) {
        return false;
    }
    if (mProject.saveProject(file.toStdString()) == 0) {
        mLastError = tr("The project could not be saved to %1.").arg(QDir::cleanPath(file));
        return false;
    }
    mFile = file;
    mModified = false;
    if (isSamePath(file, mRunFile)) {
        mRunFileOutdated = false;
    }
    remember(file);
    return true;
}

void ProjectController::saveOnQuit()
{
    if (mRunFileOutdated && mProject.saveProject(mRunFile.toStdString()) != 0) {
        mModified = false;
        mRunFileOutdated = false;
    }
}

bool ProjectController::askSaveProject()
{
    mLastError.clear();
    if (!mModified) {
        return true;
    }
    switch (mDialogs.askToSave(mParent, tr("VELIX Warning"),
                               tr("Current Project not saved !\nSave it now ?"))) {
    case DialogService::Answer::Yes:
        return saveProject(false);
    case DialogService::Answer::No:
        return true;
    case DialogService::Answer::Cancel:
        break;
    }
    return false;
}

bool ProjectController::askFileName(QString& file)
{
    const QString suffix = QStringLiteral(".xml");
    QString chosen = mDialogs.saveFile(mParent, tr("Save VELIX Project"), lastPath(),
                                       tr("Project Files (*.xml)"), suffix.mid(1));
    if (chosen.isEmpty()) {
        return false;
    }
    if (!chosen.endsWith(suffix)) {
        chosen += suffix;
        // The file dialog asked about another name.
        if (QFileInfo::exists(chosen) &&
            !mDialogs.confirm(mParent, tr("VELIX Warning"),
                              tr("%1 exists already.\nReplace it ?").arg(chosen))) {
            return false;
        }
    }
    file = chosen;
    return true;
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

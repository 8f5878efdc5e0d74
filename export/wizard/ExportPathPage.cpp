#include "export/wizard/ExportPathPage.h"

#include "export/OutputFile.h"
#include "export/wizard/ExportNote.h"
#include "gui/dialogs/DialogService.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace VELIX {

namespace {

constexpr int kGap = 8;

} // namespace

ExportPathPage::ExportPathPage(DialogService& dialogs, std::string& directory,
                               std::string& fileName, QWidget* parent)
    : QWizardPage(parent),
      mDialogs(dialogs),
      mDirectory(directory),
      mFileName(fileName),
      mPathEdit(new QLineEdit(this)),
      mFileEdit(new QLineEdit(this)),
      mProblem(new ExportNote(this)),
      mRemark(new ExportNote(this))
{
    setSubTitle(tr("Select the output directory and file"));
    createLayout();
    connect(mPathEdit, &QLineEdit::textChanged, this, &ExportPathPage::slotPath);
    connect(mFileEdit, &QLineEdit::textChanged, this, &ExportPathPage::slotFile);
}

void ExportPathPage::createLayout()
{
    auto* browse = new QPushButton(tr("Bro&wse..."), this);
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &ExportPathPage::slotPathSelect);
    auto* pathLabel = new QLabel(tr("Export Path"), this);
    auto* fileLabel = new QLabel(tr("Export Filename"), this);
    pathLabel->setBuddy(mPathEdit);
    fileLabel->setBuddy(mFileEdit);

    mPathEdit->setObjectName(QStringLiteral("exportPath"));
    mFileEdit->setObjectName(QStringLiteral("exportFile"));
    mProblem->setObjectName(QStringLiteral("exportProblem"));
    mRemark->setObjectName(QStringLiteral("exportRemark"));
    setTabOrder(mPathEdit, browse);
    setTabOrder(browse, mFileEdit);

    auto* layout = new QGridLayout(this);
    layout->setHorizontalSpacing(kGap);
    layout->setVerticalSpacing(kGap);
    layout->addWidget(pathLabel, 0, 0);
    layout->addWidget(mPathEdit, 0, 1);
    layout->addWidget(browse, 0, 2);
    layout->addWidget(fileLabel, 1, 0);
    layout->addWidget(mFileEdit, 1, 1, 1, 2);
    layout->addWidget(mProblem, 2, 1, 1, 2);
    layout->addWidget(mRemark, 3, 1, 1, 2);
    layout->setRowStretch(4, 1);
}

void ExportPathPage::initializePage()
{
    if (mDirectory.empty()) {
        mDirectory.assign(1, '.'); // GCC 12 takes a literal for an endless copy
    }
    mPathEdit->setText(directory());
    mFileEdit->setText(fileName());
    mProblem->setNote({});
    mReplaced.clear();
}

QString ExportPathPage::directory() const
{
    return QString::fromStdString(mDirectory);
}

QString ExportPathPage::fileName() const
{
    return QString::fromStdString(mFileName);
}

QString ExportPathPage::problem(const QString& directory, const QString& fileName)
{
    const QFileInfo folder(directory);
    if (directory.isEmpty() || !folder.exists()) {
        return tr("The folder \"%1\" does not exist.").arg(directory);
    }
    if (!folder.isDir()) {
        return tr("\"%1\" is not a folder.").arg(directory);
    }
    if (!folder.isWritable()) {
        return tr("No files can be written in the folder \"%1\".").arg(directory);
    }
    if (fileName.trimmed().isEmpty()) {
        return tr("Enter a name for the file.");
    }
    if (fileName.contains(QLatin1Char('/'))) {
        return tr("The name of the file must not contain \"/\".");
    }
    if (QFileInfo(QDir(directory), fileName).isDir()) {
        return tr("\"%1\" is a folder. Enter another name.").arg(fileName);
    }
    return {};
}

bool ExportPathPage::validatePage()
{
    const QString sentence = problem(directory(), fileName());
    mProblem->setNote(sentence);
    if (!sentence.isEmpty()) {
        return false;
    }
    const QString file = outputPath(mDirectory, mFileName);
    if (!QFileInfo::exists(file) || file == mReplaced) {
        return true;
    }
    const bool agreed = mDialogs.confirm(
        this, title(), tr("The file \"%1\" exists already.\nReplace it ?").arg(fileName()));
    mReplaced = agreed ? file : QString();
    return agreed;
}

void ExportPathPage::setRemark(const QString& sentence)
{
    mRemark->setNote(sentence);
}

void ExportPathPage::setFileHint(const QString& sentence)
{
    mFileEdit->setToolTip(sentence);
}

void ExportPathPage::slotPath(const QString& path)
{
    mDirectory = path.toStdString();
    mProblem->setNote({});
}

void ExportPathPage::slotPathSelect()
{
    const QString folder = mDialogs.folder(this, chooserTitle(), directory());
    if (!folder.isEmpty()) {
        mPathEdit->setText(folder);
    }
}

void ExportPathPage::slotFile(const QString& file)
{
    mFileName = file.toStdString();
    mProblem->setNote({});
}

} // namespace VELIX

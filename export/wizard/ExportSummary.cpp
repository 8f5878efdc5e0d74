#include "export/wizard/ExportSummary.h"

#include "export/OutputFile.h"

#include <QFormLayout>
#include <QLabel>
#include <QLocale>

namespace VELIX {

namespace {

constexpr int kGap = 8;
/// As wide as the pages are by themselves; a long path must not stretch the wizard.
constexpr int kPathWidth = 360;

} // namespace

ExportSummary::ExportSummary(QWidget* parent)
    : QGroupBox(tr("What will be written"), parent),
      mLayout(new QFormLayout(this)),
      mFile(new QLabel(this))
{
    mLayout->setHorizontalSpacing(2 * kGap);
    mLayout->setVerticalSpacing(kGap / 2);
    mFile->setTextFormat(Qt::PlainText);
    mFile->setObjectName(QStringLiteral("summaryFile"));
    mLayout->addRow(tr("File"), mFile);
}

void ExportSummary::addLine(const QString& label)
{
    auto* count = new QLabel(this);
    count->setTextFormat(Qt::PlainText);
    const int line = static_cast<int>(mCounts.size());
    count->setObjectName(QStringLiteral("summary%1").arg(line));
    mLayout->insertRow(line, label, count);
    mCounts.push_back(count);
}

void ExportSummary::setCount(int line, std::size_t count, const QString& remark)
{
    const QString number = QLocale().toString(static_cast<qulonglong>(count));
    mCounts[static_cast<std::size_t>(line)]->setText(
        remark.isEmpty() ? number : QStringLiteral("%1 \u2013 %2").arg(number, remark));
}

void ExportSummary::setFile(const std::string& directory, const std::string& fileName)
{
    const QString path = absoluteOutputPath(directory, fileName);
    mFile->setText(mFile->fontMetrics().elidedText(path, Qt::ElideMiddle, kPathWidth));
    mFile->setToolTip(path);
}

} // namespace VELIX

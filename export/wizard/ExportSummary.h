#pragma once

#include <QGroupBox>

#include <cstddef>
#include <string>
#include <vector>

class QFormLayout;
class QLabel;

namespace VELIX {

/// What an export will write, at the end of its wizard: one line per kind of thing, then the file.
class ExportSummary : public QGroupBox
{
    Q_OBJECT

public:
    explicit ExportSummary(QWidget* parent = nullptr);

    /// Adds a line below the others. Lines are numbered from 0 on.
    void addLine(const QString& label);
    /// Shows the count of a line. remark: why it is so small, shown behind it.
    void setCount(int line, std::size_t count, const QString& remark = {});
    /// Shows the file of a folder and a name (UTF-8), from the root on.
    void setFile(const std::string& directory, const std::string& fileName);

private:
    QFormLayout* mLayout;
    std::vector<QLabel*> mCounts;
    QLabel* mFile;
};

} // namespace VELIX

#pragma once

#include <QTextEdit>

class QTextCursor;

namespace VELIX {

/// A read-only text whose tables are copied row by row, cells separated by tabs, so that a
/// spreadsheet or a plain text gets what is seen. The rich form is copied unchanged.
class TableTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit TableTextEdit(QWidget* parent = nullptr);

    /// Returns the selected text, without the colon after the name of a value.
    [[nodiscard]] static QString plainText(const QTextCursor& selection);

protected:
    QMimeData* createMimeDataFromSelection() const override;
};

} // namespace VELIX

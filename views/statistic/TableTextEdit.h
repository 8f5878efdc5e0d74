#pragma once

#include <QTextEdit>

class QTextCursor;

namespace VELIX {

/// A read-only text whose tables are copied row by row, cells separated by tabs, so that a
/// spreadsheet or a plain text gets what is seen. The rich form goes along unchanged.
class TableTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit TableTextEdit(QWidget* parent = nullptr);

    /// The selected text. The colon behind the name of a value is left out.
    [[nodiscard]] static QString plainText(const QTextCursor& selection);

protected:
    QMimeData* createMimeDataFromSelection() const override;
};

} // namespace VELIX

#pragma once

#include <QWidget>

class QLabel;

namespace VELIX {

/// A sentence with a warning sign in front of it; takes no room while there is nothing to say.
class ExportNote : public QWidget
{
    Q_OBJECT

public:
    explicit ExportNote(QWidget* parent = nullptr);

    /// Shows a plain text; an empty one hides the note.
    void setNote(const QString& sentence);
    QString note() const;

private:
    QLabel* mText;
};

} // namespace VELIX

#pragma once

#include "views/common/DataView.h"
#include "views/common/Printable.h"

#include <QString>
#include <QWidget>

class QTextEdit;

namespace VELIX {

/// Shows the figures of the chosen flight or, for a whole cycle, an overview of its flights. They
/// were computed when the cycle was loaded; the view only writes them out and ignores the cursor.
class DialogDataStatistic : public QWidget, public DataView, public Printable
{
    Q_OBJECT

public:
    explicit DialogDataStatistic(QWidget* parent = nullptr);

    void setTime(double) override {}
    void updateRecord(RecordData* record) override;
    void updateProfile() override {}

    /// Appends a row to the table that is being written.
    void addLine(const QString& name, const QString& value);

    QString printTitle() const override;
    QString unprintableReason() const override;
    std::unique_ptr<PrintLayout> printLayout(QPaintDevice& device,
                                             const QSizeF& room) const override;

private:
    void addStatistic();
    void addOverview();

    RecordData* mRecord = nullptr;
    QString mText; ///< rich text
    QTextEdit* mTextEdit = nullptr;
};

} // namespace VELIX

#pragma once

#include "profile/ProfileParameter.h"

#include <QColor>
#include <QString>
#include <QTableWidgetItem>

#include <cstdint>

namespace VELIX {

class Profile;
struct RecordEntry;

/// What the cells of one column have in common. It holds a copy of its parameter, since the
/// profile may be loaded again while the table is on screen.
struct TableColumn
{
    Profile& profile;
    ProfileParameter parameter;
};

/// The ground that a profile gives to a value; invalid if it gives none.
QColor valueGround(int state, const QColor& color);

/// A cell that nobody edits, with the alignment and, on a ground of its own, a text colour of
/// its own: the ground does not follow the look of the desktop.
class TableCell : public QTableWidgetItem
{
public:
    TableCell() { setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled); }

    QVariant data(int role) const override;

protected:
    virtual QString cellText() const = 0;
    virtual QColor ground() const = 0;
};

/// The time of a row. Its user data are milliseconds on the record's time axis.
class TableTimeItem final : public TableCell
{
public:
    explicit TableTimeItem(std::uint32_t key) : mKey(key) {}

    QVariant data(int role) const override;

private:
    QString cellText() const override;
    QColor ground() const override;

    std::uint32_t mKey; ///< tenths of a second
};

/// The value of one sample, made into text and colour only while it is on screen: a record has
/// a million cells, of which fifty rows are seen.
class TableValueItem final : public TableCell
{
public:
    /// Both must outlive the item.
    TableValueItem(const TableColumn& column, const RecordEntry& entry)
        : mColumn(&column), mEntry(&entry)
    {}
    void setEntry(const RecordEntry& entry) { mEntry = &entry; }

private:
    QString cellText() const override;
    QColor ground() const override;

    const TableColumn* mColumn;
    const RecordEntry* mEntry;
};

/// A value whose text depends on the samples before it and so was made when the column was
/// filled.
class TableTextItem final : public TableCell
{
public:
    void setValue(const QString& text, const QColor& ground)
    {
        mText = text;
        mGround = ground;
    }

private:
    QString cellText() const override { return mText; }
    QColor ground() const override { return mGround; }

    QString mText;
    QColor mGround;
};

} // namespace VELIX

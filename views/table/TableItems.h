#pragma once

#include "profile/ProfileParameter.h"
#include "views/common/TableCell.h"

#include <cstdint>

namespace VELIX {

class Profile;
struct RecordEntry;

/// What the cells of one column have in common. It holds a copy of its parameter, since the
/// profile may be loaded again while the table is on screen.
struct TableColumn
{
    const Profile& profile;
    ProfileParameter parameter;
};

/// The background that a profile gives to a value; invalid if it gives none.
QColor valueBackground(int state, const QColor& color);

/// The time of a row. Its user data are milliseconds on the record's time axis.
class TableTimeItem final : public TableCell
{
public:
    explicit TableTimeItem(std::uint32_t key) : mKey(key) {}

    QVariant data(int role) const override;

private:
    QString cellText() const override;
    QColor cellBackground() const override { return kTimeBackground; }

    std::uint32_t mKey; ///< tenths of a second
};

/// The value of one sample, turned into text and colour only while it is on screen: a record has
/// a million cells, of which fifty rows are visible.
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
    QColor cellBackground() const override;

    const TableColumn* mColumn;
    const RecordEntry* mEntry;
};

/// A value whose text depends on the samples before it and was therefore made when the column was
/// filled.
class TableTextItem final : public TableCell
{
public:
    void setValue(const QString& text, const QColor& background)
    {
        mText = text;
        mBackground = background;
    }

private:
    QString cellText() const override { return mText; }
    QColor cellBackground() const override { return mBackground; }

    QString mText;
    QColor mBackground;
};

} // namespace VELIX

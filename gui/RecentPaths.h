#pragma once

#include <QString>
#include <QStringList>

namespace VELIX {

class Property;

/// What was opened lately, the latest first, kept in the settings.
class RecentPaths
{
public:
    static constexpr int kCount = 8;

    /// key: the settings' name of the list; its entries append their number.
    RecentPaths(Property& settings, QString key);

    QStringList paths() const;
    /// Puts a path in front, once. The caller writes the settings.
    void add(const QString& path);
    void remove(const QString& path);

private:
    void store(const QStringList& paths);
    std::string keyOf(int index) const;

    Property& mSettings;
    QString mKey;
};

} // namespace VELIX

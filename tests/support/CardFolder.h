#pragma once

#include "tests/support/RecordBuilder.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <initializer_list>
#include <list>

namespace VELIX::Test {

/// A card folder of its own for one test.
class CardFolder
{
public:
    QString path() const { return mFolder.path(); }
    QString file(const char* name) const { return mFolder.filePath(QString::fromUtf8(name)); }

    CardFolder& add(const char* name, const RecordBuilder& record,
                    RecordBuilder::Order order = RecordBuilder::Order::Big)
    {
        return add(name, record.bytes(order));
    }
    CardFolder& add(const char* name, const QByteArray& bytes)
    {
        (void)writeFile(file(name), bytes);
        return *this;
    }
    /// Adds a file of that size that takes no space on the disk.
    CardFolder& addSparse(const char* name, qint64 size)
    {
        QFile out(file(name));
        if (out.open(QIODevice::ReadWrite)) {
            out.resize(size);
        }
        return *this;
    }
    static std::list<QString> names(std::initializer_list<const char*> texts)
    {
        std::list<QString> list;
        for (const char* text : texts) {
            list.push_back(QString::fromUtf8(text));
        }
        return list;
    }

private:
    QTemporaryDir mFolder;
};

} // namespace VELIX::Test

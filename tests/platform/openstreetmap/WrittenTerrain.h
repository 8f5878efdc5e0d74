#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtEndian>

#include <gtest/gtest.h>

namespace OpenStreet::Test {

/// Writes heights of a square degree; `height` takes fractions from the west and the north.
template <typename Height>
void writeTerrain(const QString& path, int side, const Height& height)
{
    QByteArray bytes(side * side * 2, '\0');
    char* next = bytes.data();
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const int metres = height(column / (side - 1.0), row / (side - 1.0));
            qToBigEndian(static_cast<qint16>(metres), next);
            next += 2;
        }
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace OpenStreet::Test

#pragma once

#include <QString>

class QMimeData;

namespace VELIX {

/// What a drop onto the window brings: a card's folder, a project, or nothing that can be opened.
struct DroppedPath
{
    enum class Kind { Nothing, Card, Project };

    /// The first of the local files and folders decides; a record file stands for its folder.
    static DroppedPath of(const QMimeData* data);

    Kind kind = Kind::Nothing;
    QString path;
};

} // namespace VELIX

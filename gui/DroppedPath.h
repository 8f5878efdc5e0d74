#pragma once

#include <QString>

class QMimeData;

namespace VELIX {

/// What was dropped onto the window: a card's folder, a project, or nothing that can be opened.
struct DroppedPath
{
    enum class Kind { Nothing, Card, Project };

    /// The first of the local files and folders decides; a record file means its folder.
    static DroppedPath of(const QMimeData* data);

    Kind kind = Kind::Nothing;
    QString path;
};

} // namespace VELIX

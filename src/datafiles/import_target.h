#pragma once

#include "disk/durable.h"
#include "disk/file_error.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace tarvold {

/// The stipulations that an import's target file already holds, found by their key, which is match
/// type and name. Follows what other programs do to the file.
class ImportTarget
{
public:
    /// \param name as the user typed it
    explicit ImportTarget(QString name) : m_name(std::move(name)) {}

    /// Reads the file unless it is as it was at the last call.
    [[nodiscard]] std::optional<FileError> refresh();

    /// Where stipulations of this key stand, in the order of the file.
    const std::vector<int> &positions(QByteArrayView matchType, QByteArrayView stipulation) const;

    /// Why the file cannot be read to its end, when it ends inside a stipulation.
    const std::optional<FileError> &cutShort() const { return m_cutShort; }

private:
    void index(QByteArrayView bytes);

    QString m_name;
    std::optional<durable::FileState> m_state;
    QHash<QByteArray, std::vector<int>> m_positions;
    std::optional<FileError> m_cutShort;
};

} // namespace tarvold

#pragma once

#include "datafiles/data_file_kind.h"

#include <QString>

#include <optional>

/// What kinds of data files are called on a command line.
namespace tarvold::records::kindnames {

/// The kind with this name.
std::optional<DataFileKind> kindOf(const QString &name);

/// The name of a kind.
QString nameOf(DataFileKind kind);

/// All names, joined by a separator.
QString all(const QString &separator);

} // namespace tarvold::records::kindnames

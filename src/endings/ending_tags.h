#pragma once

#include "screens/commentary_screen.h"

#include <span>

/// What the commentary screens of all match endings have in common: texts, tags, and when tags are
/// refused.
namespace tarvold::endingtags {

/// The tag lists of the three kinds.
std::span<const CommentaryTag> normal();
std::span<const CommentaryTag> runIn();
std::span<const CommentaryTag> turn();

/// The commentary screen of one kind.
CommentaryTable table(const char *name, std::span<const CommentaryTag> tags, DataFileKind kind,
                      const RecordLayout &(*layout)());

} // namespace tarvold::endingtags

#pragma once

#include <QStringList>

namespace tarvold::testing {

/// All string literals in the source of the screens and of the file layer; adjacent ones are
/// concatenated, as the compiler does.
QStringList sourceLiterals();

/// The paragraphs of all messages among them: sentences that are not help texts, captions or
/// instructions. Placeholders read %1 and so on; paragraphs that are only a placeholder are left
/// out.
QStringList sourceMessages();

} // namespace tarvold::testing

#pragma once

#include <QStringList>

namespace tarvold::testing {

/// All string literals in the source of the screens and of the file layer; adjacent ones are put
/// together, as the compiler does.
QStringList sourceLiterals();

/// The paragraphs of all messages among them: sentences that are no help text, caption or
/// instruction. What is filled in later reads %1 and so on; a paragraph that is nothing else is
/// left out.
QStringList sourceMessages();

} // namespace tarvold::testing

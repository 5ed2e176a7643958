// The code page is the system's ANSI code page, which follows from its language.

#include "datafiles/ansi_page.h"
#include "datafiles/code_page.h"
#include "datafiles/code_page_system.h"

#include <windows.h>

namespace tarvold::codepage {
namespace {

const AnsiPage &page()
{
    static const AnsiPage ofTheSystem(::GetACP());
    return ofTheSystem;
}

} // namespace

std::optional<QByteArray> bytesOf(char32_t character)
{
    return page().bytesOf(character);
}

QString decode(QByteArrayView bytes)
{
    return page().decode(bytes);
}

} // namespace tarvold::codepage

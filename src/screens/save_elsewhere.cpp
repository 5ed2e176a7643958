#include "screens/save_elsewhere.h"

#include "controls/message_box.h"
#include "disk/read.h"
#include "screens/failures.h"
#include "screens/file_choice.h"
#include "screens/main_menu.h"
#include "screens/screens.h"

#include <optional>

namespace tarvold::saveelsewhere {

using namespace Qt::StringLiterals;

namespace {

constexpr char kButtonCaption[] = "&Save To Another File...";

/// Whether a save replaces the file instead of appending to it.
bool replacesFile(DataFileKind kind)
{
    return kind == DataFileKind::Stipulations;
}

/// The name with the extension of data files. An existing file that is appended to keeps its name.
QString withExtension(const QString &name, DataFileKind kind)
{
    const bool keepsName = !replacesFile(kind) && fileExists(name);
    return keepsName ? name : filechoice::withExtension(name);
}

bool mayBeWritten(const FailedSave &failed, const QString &name)
{
    return !replacesFile(failed.kind) || !fileExists(name) ||
           messagebox::question(failed.asking, failed.title, failures::inTheWay(name),
                                messagebox::EnterMeans::No);
}

/// The name of the file that the user chooses.
/// \param before the file of the failed save: choosing it again means to retry
std::optional<QString> chosenName(const FailedSave &failed, const QString &before)
{
    QString name = before;
    do {
        const auto path =
            filechoice::chosenPath({failed.asking, u"Save To Another File"_s, name,
                                    QLatin1StringView(rowOf(failed.kind).defaultName)});
        if (!path) {
            return std::nullopt;
        }
        name = withExtension(filechoice::nameOf(*path), failed.kind);
        if (filechoice::areSame(name, before)) {
            return before;
        }
    } while (!mayBeWritten(failed, name));
    return name;
}

} // namespace

bool offer(Screens &screens, const FailedSave &failed)
{
    if (!messagebox::offer(failed.asking, failed.title, failed.text,
                           QLatin1StringView(kButtonCaption))) {
        return false;
    }
    const ControlRef box = Form1::fileNameBox(failed.kind);
    const auto name = chosenName(failed, screens.text(box));
    if (name) {
        screens.setText(box, *name);
    }
    return name.has_value();
}

} // namespace tarvold::saveelsewhere

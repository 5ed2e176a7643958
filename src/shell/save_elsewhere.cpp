#include "shell/save_elsewhere.h"

#include "datafiles/durable.h"
#include "datafiles/file_name.h"
#include "datafiles/read.h"
#include "shell/failures.h"
#include "shell/message_box.h"
#include "shell/screens.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

#include <optional>

namespace tarvold::saveelsewhere {
namespace {

constexpr char kExtension[] = ".tvd";
constexpr char kButtonCaption[] = "&Save To Another File...";

/// Whether a save writes the file whole instead of adding to it.
bool replacesFile(DataFileKind kind)
{
    return kind == DataFileKind::Stipulations;
}

/// Qt's dialog would write down where it was last; this program keeps no settings.
void keepNoSettings()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

/// Opens the dialog in the folder of the failed save, with the same name, as far as both can be.
/// A folder is not proposed: Qt's own dialog would keep it chosen beside the name that is typed.
void startAt(QFileDialog &dialog, const QString &failed, DataFileKind kind)
{
    const QString usual = QLatin1StringView(rowOf(kind).defaultName);
    const bool isName = !failed.isEmpty() && durable::canBeName(failed);
    const QFileInfo file(isName ? durable::pathOf(failed) : usual);
    const QDir folder = file.absoluteDir();
    dialog.setDirectory(folder.exists() ? folder : QDir());
    const QString name = isTvdName(file.fileName()) ? file.fileName() : usual;
    if (!QFileInfo(dialog.directory().filePath(name)).isDir()) {
        dialog.selectFile(name);
    }
}

/// Lets the user choose a file by the platform's own dialog.
std::optional<QString> chosenPath(const FailedSave &failed, const QString &name)
{
    keepNoSettings();
    QFileDialog dialog(failed.asking, QStringLiteral("Save To Another File"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setViewMode(QFileDialog::List);
    dialog.setNameFilter(QStringLiteral("Data files (*.tvd)"));
    // What is added to is not lost. Over what is written over, this program asks itself, for only
    // it knows the name with its end.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    startAt(dialog, name, failed.kind);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst();
}

/// What the box on the main menu shows: the bare name in the current folder, else the whole path.
QString nameOf(const QString &path)
{
    const QFileInfo file(path);
    const bool isHere = file.absoluteDir().canonicalPath() == QDir().canonicalPath();
    return isHere ? file.fileName() : QDir::toNativeSeparators(file.absoluteFilePath());
}

/// The name with the end that data files have. A file that only gets more keeps the name it has.
QString withExtension(QString name, DataFileKind kind)
{
    const QLatin1StringView extension(kExtension);
    const bool keepsName = !replacesFile(kind) && fileExists(name);
    if (isTvdName(name) || keepsName) {
        return name;
    }
    if (name.endsWith(extension, Qt::CaseInsensitive)) {
        name.chop(extension.size());
    }
    return name + extension;
}

bool mayBeWritten(const FailedSave &failed, const QString &name)
{
    return !replacesFile(failed.kind) || !fileExists(name) ||
           messagebox::question(failed.asking, failed.title, failures::inTheWay(name),
                                messagebox::EnterMeans::No);
}

/// The name of the file that the user chooses.
std::optional<QString> chosenName(const FailedSave &failed, QString name)
{
    do {
        const auto path = chosenPath(failed, name);
        if (!path) {
            return std::nullopt;
        }
        name = withExtension(nameOf(*path), failed.kind);
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
    const ControlRef box = rowOf(failed.kind).nameBox;
    const auto name = chosenName(failed, screens.text(box));
    if (name) {
        screens.setText(box, *name);
    }
    return name.has_value();
}

} // namespace tarvold::saveelsewhere

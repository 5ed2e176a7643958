#include "screens/save_elsewhere.h"

#include "controls/message_box.h"
#include "datafiles/file_name.h"
#include "disk/file_path.h"
#include "disk/read.h"
#include "screens/failures.h"
#include "screens/main_menu.h"
#include "screens/screens.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

#include <memory>
#include <optional>

namespace tarvold::saveelsewhere {

using namespace Qt::StringLiterals;

namespace {

constexpr char kExtension[] = ".tvd";
constexpr char kButtonCaption[] = "&Save To Another File...";

/// Whether a save replaces the file instead of appending to it.
bool replacesFile(DataFileKind kind)
{
    return kind == DataFileKind::Stipulations;
}

/// Qt saves the state of a file dialog when it is destroyed, but this program keeps no settings. On
/// Windows they would go into the registry in spite of keepNoSettings(), so there a dialog is kept
/// until the program ends.
struct EndOfUse
{
    void operator()(QFileDialog *dialog) const
    {
#ifdef Q_OS_WIN
        dialog->setParent(nullptr);
#else
        delete dialog;
#endif
    }
};

/// Discards the settings that Qt's dialogs save.
void keepNoSettings()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}

/// Starts the dialog in the folder of the failed save and with the same name, if both are usable.
/// A folder is not proposed: Qt's own dialog would keep it selected beside the name that is typed.
void startAt(QFileDialog &dialog, const QString &failed, DataFileKind kind)
{
    const QString usual = QLatin1StringView(rowOf(kind).defaultName);
    const auto path = FilePath::ofTyped(failed);
    const QFileInfo file(path ? path->text() : usual);
    const QDir folder = file.absoluteDir();
    dialog.setDirectory(folder.exists() ? folder : QDir());
    const QString name = isTvdName(file.fileName()) ? file.fileName() : usual;
    if (!QFileInfo(dialog.directory().filePath(name)).isDir()) {
        dialog.selectFile(name);
    }
}

/// Lets the user choose a file with the platform's own dialog.
std::optional<QString> chosenPath(const FailedSave &failed, const QString &name)
{
    keepNoSettings();
    const std::unique_ptr<QFileDialog, EndOfUse> dialog(
        new QFileDialog(failed.asking, u"Save To Another File"_s));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setViewMode(QFileDialog::List);
    dialog->setNameFilter(u"Data files (*.tvd)"_s);
    // Appending loses nothing. Before overwriting, this program asks itself, because only it knows
    // the name with its extension.
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    // Qt's own dialog would offer to delete and rename files.
    dialog->setOption(QFileDialog::ReadOnly);
    startAt(*dialog, name, failed.kind);
    // The Windows dialog changes the current folder, to which all names on the main menu are
    // relative.
    const QString folder = QDir::currentPath();
    const int answer = dialog->exec();
    QDir::setCurrent(folder);
    if (answer != QDialog::Accepted || dialog->selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog->selectedFiles().constFirst();
}

/// What the box on the main menu shows: the name alone in the current folder, else the full path.
QString nameOf(const QString &path)
{
    const QFileInfo file(path);
    const bool isHere = file.absoluteDir().canonicalPath() == QDir().canonicalPath();
    return isHere ? file.fileName() : QDir::toNativeSeparators(file.absoluteFilePath());
}

/// The name with the extension of data files. An existing file that is appended to keeps its name.
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

/// Whether two names mean the same existing file.
bool areSame(const QString &one, const QString &other)
{
    if (!fileExists(one) || !fileExists(other)) {
        return false;
    }
    const QFileInfo first(FilePath::ofTyped(one)->text());
    const QFileInfo second(FilePath::ofTyped(other)->text());
    return first.canonicalFilePath() == second.canonicalFilePath();
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
        const auto path = chosenPath(failed, name);
        if (!path) {
            return std::nullopt;
        }
        name = withExtension(nameOf(*path), failed.kind);
        if (areSame(name, before)) {
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

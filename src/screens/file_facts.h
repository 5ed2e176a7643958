#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace tarvold {

enum class DataFileKind;
class TextBox;

/// What the user may want to know about a data file before using it.
namespace filefacts {

/// The whole path that a name means, as the system writes paths; empty if the name is. ".." stays
/// in it where the folder before it may be a symbolic link, which only the system can follow.
/// \param name as the user typed it
QString wholePath(const QString &name);

/// What a button tells that writes to the file of this name.
/// \param verb such as "Adds to ", comes before the whole path
QString purpose(const QString &verb, const QString &name);

/// What is at a path.
struct State
{
    QString words; ///< in a sentence or two: how many records, or why there are none
    QString keys;  ///< what the keys that look through the file would show; empty if nothing

    /// All of it.
    QString text() const;
};

/// What is at a path. Reads the file, so it may take long.
/// \param path as wholePath() returned it
State stateOf(const QString &path, DataFileKind kind);

} // namespace filefacts

/// Shows the whole path of the file that a box names, and what is there, in the box's tooltip and
/// to assistive technology.
///
/// The file is looked at in another thread: nothing ever waits for it. Until that is done, only the
/// path is shown. Assistive technology is told once the user has stopped typing, not at each key.
/// It is told of the keys that look through the file until the user leaves the box, as it would
/// read them out each time.
class FileFacts : public QObject
{
    Q_OBJECT
public:
    /// \param box holds the file's name; becomes the owner
    FileFacts(TextBox &box, DataFileKind kind);

    /// Looks at the file again, for when the box appears.
    void refresh();

    /// Tells assistive technology no longer of the keys.
    void endKeys();

signals:
    /// Assistive technology was told of the keys, and the user has left the box.
    void keysTold();

private:
    void follow();
    void look();
    void show(const filefacts::State &state);
    void describe(const QString &facts);

    TextBox &m_box;
    DataFileKind m_kind;
    QTimer m_pause; ///< until the user has stopped typing
    QFutureWatcher<filefacts::State> m_found;
    filefacts::State m_state; ///< that is shown
    bool m_tellsKeys = true;
};

} // namespace tarvold

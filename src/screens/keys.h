#pragma once

#include <QKeySequence>

/// The keys that mean the same on all screens that have such a button.
namespace tarvold::keys {

inline QKeySequence back()
{
    return Qt::ALT | Qt::Key_Left;
}

inline QKeySequence next()
{
    return Qt::ALT | Qt::Key_Right;
}

inline QKeySequence save()
{
    return Qt::CTRL | Qt::Key_S;
}

/// Looks through the records of a file.
inline QKeySequence lookThrough()
{
    return Qt::CTRL | Qt::Key_O;
}

} // namespace tarvold::keys

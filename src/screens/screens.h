#pragma once

#include "screens/screen.h"

#include <QObject>

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>

namespace tarvold {

/// The name of a control and of its screen, such as Form4, Combo3.
struct ControlRef
{
    const char *screen;
    const char *control;
};

/// A value that a control starts with.
struct Preset
{
    ControlRef control;
    const char *value;
};

/// All screens of the program, each created when it is first needed and kept for the whole run.
class Screens : public QObject
{
    Q_OBJECT
public:
    /// Registers a type of screen. T has a `kName` and a constructor that takes a `Screens &`.
    template <class T>
    void declare()
    {
        m_makers[T::kName] = [this] { return std::make_unique<T>(*this); };
    }

    /// The one screen of type T.
    template <class T>
    T &get()
    {
        return static_cast<T &>((*this)[T::kName]);
    }

    /// The one screen with this name. A name that was never declared ends the program.
    Screen &operator[](const std::string &name);

    /// Whether the screen has been created yet.
    bool exists(const std::string &name) const { return m_screens.contains(name); }

    /// The screen that the user works on, be it minimized; null before the first one is shown.
    Screen *shown() const;

    /// The text that a control of some screen shows now.
    QString text(ControlRef ref);

    /// Puts a text into a control of some screen; never counts as a choice by the user.
    void setText(ControlRef ref, const QString &text);

    /// Puts the values into their controls, in this order.
    void apply(std::span<const Preset> presets);

signals:
    /// A screen was created; it is complete, but not shown yet.
    void created(tarvold::Screen *screen);

private:
    std::unordered_map<std::string, std::function<std::unique_ptr<Screen>()>> m_makers;
    std::unordered_map<std::string, std::unique_ptr<Screen>> m_screens;
};

} // namespace tarvold

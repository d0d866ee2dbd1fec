#pragma once

#include <string_view>

/// An option of the toolkit: a word that a program with windows takes off its command line before it looks
/// for its own. It is written with one dash or with two.
struct ToolkitOption
{
    /// The toolkit goes through the command line four times, in this order, each time for other options. What
    /// one pass has taken, the next one does not see.
    enum class Pass { Platform, Core, Gui, Widgets };
    /// What goes with the option.
    enum class Value {
        None,
        NextWord,         ///< whatever it looks like; at the end of the line the option goes alone
        NextWordIfAny,    ///< the same, but at the end of the line the option stays
        NextWordOrEquals, ///< the same again, and "-style=fusion" is the option with its value
    };

    std::string_view name;
    Pass pass;
    Value value;
};

/// All of them. What only a plug-in of the toolkit takes, as the one for X11 takes "-display", is not among
/// them: the renderer shows no windows and loads no plug-in for them.
inline constexpr ToolkitOption toolkitOptions[] = {
    {"-platform", ToolkitOption::Pass::Platform, ToolkitOption::Value::NextWord},
    {"-platformpluginpath", ToolkitOption::Pass::Platform, ToolkitOption::Value::NextWord},
    {"-platformtheme", ToolkitOption::Pass::Platform, ToolkitOption::Value::NextWord},
    {"-qwindowgeometry", ToolkitOption::Pass::Platform, ToolkitOption::Value::NextWord},
    {"-qwindowicon", ToolkitOption::Pass::Platform, ToolkitOption::Value::NextWord},
    {"-qwindowtitle", ToolkitOption::Pass::Platform, ToolkitOption::Value::NextWord},
    {"-qmljsdebugger", ToolkitOption::Pass::Core, ToolkitOption::Value::NextWordOrEquals},
    {"-plugin", ToolkitOption::Pass::Gui, ToolkitOption::Value::NextWord},
    {"-reverse", ToolkitOption::Pass::Gui, ToolkitOption::Value::None},
    {"-session", ToolkitOption::Pass::Gui, ToolkitOption::Value::NextWordIfAny},
    {"-style", ToolkitOption::Pass::Gui, ToolkitOption::Value::NextWordOrEquals},
    {"-testability", ToolkitOption::Pass::Gui, ToolkitOption::Value::None},
    {"-qdebug", ToolkitOption::Pass::Widgets, ToolkitOption::Value::None},
    {"-qdevel", ToolkitOption::Pass::Widgets, ToolkitOption::Value::None},
    {"-stylesheet", ToolkitOption::Pass::Widgets, ToolkitOption::Value::NextWordOrEquals},
    {"-widgetcount", ToolkitOption::Pass::Widgets, ToolkitOption::Value::None},
};

/// Takes the toolkit's options off a command line, and their values, as the toolkit does in a program with
/// windows: the words that are left move up, a null follows them, and `argc` counts them. Behind the null a
/// place keeps what it held.
void dropToolkitOptions(int &argc, char **argv);

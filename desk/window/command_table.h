#pragma once

#include <QString>
#include <QStringList>

namespace window {

enum class Menu { File, Edit, View, Select, Blocks, Tools, Help };

/// One command of the window: menu, toolbar, keys and command line all read this table.
struct Command {
    const char* id;
    Menu menu;
    const char* text;  ///< English, with its accelerator
    const char* key;   ///< as QKeySequence reads it; empty for none
    const char* icon;  ///< of resources/icons/window; empty for none
    const char* name;  ///< on the command line; empty for none
    bool endsGroup = false;
    bool aliveInJob = false;  ///< works while a dialog is up or a prompt stands
    bool checkable = false;
};

/// In the order of the menus.
const Command* commandsBegin();
const Command* commandsEnd();
const char* menuTitle(Menu menu);

/// "Replace" of "&Replace…".
QString plainText(const QString& text);

}  // namespace window

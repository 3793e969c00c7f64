// The main menu: every entry in order, with its caption, nesting and visibility.
#pragma once

#include <QString>
#include <vector>

struct EntradaMenu {
    int nivel;        // 0 for the menu bar, 1 and 2 for nested entries
    QString control;  // the entry's name, as the commands know it
    QString titulo;   // caption; "-" is a separator
    bool visible;
    QString pantalla;  // the screen it shows, "" for headings and entries without a screen
};

const std::vector<EntradaMenu>& Menu_Principal();

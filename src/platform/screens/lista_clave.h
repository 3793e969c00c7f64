// List items with a key: the operator sees the text; the key (a course's level, a subject's
// number, a student's rut) rides along as the item's data. The procedures read an item the
// way the system writes one: the text, 200 spaces, "@" and the key.
#pragma once

#include <QString>

class QComboBox;
class QListWidget;
class QListWidgetItem;

// The item as the procedures read it: the text, 200 spaces, "@" and the key.
QString Item_Con_Clave(const QString& texto, const QString& clave);
// The part before "@", its trailing spaces cut; the whole item when it has no "@".
QString Texto_Item(const QString& item);
// What stands behind the first "@"; "" when there is none.
QString Clave_Item(const QString& item);

// Adds an item that shows `texto` and keeps `clave` as its data.
void Agrega_Item(QComboBox* lista, const QString& texto, const QString& clave);
void Agrega_Item(QListWidget* lista, const QString& texto, const QString& clave);

// The item of that index as the procedures read it: with its key, or its text alone when it
// has none; "" when there is no such item.
QString Item_Lista(const QComboBox& lista, int indice);
// The current item, the same way.
QString Item_Lista(const QComboBox& lista);
QString Item_Lista(const QListWidgetItem& item);

// The index of the first item that holds `texto`, key included; -1 when none does.
int Busca_Item(const QComboBox& lista, const QString& texto);

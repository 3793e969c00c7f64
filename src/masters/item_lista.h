// List items that carry a key: the visible text, 200 spaces, "@" and the hidden value.
#pragma once

#include <QString>

QString Item_Con_Clave(const QString& texto, const QString& clave);
// The part before "@", its trailing spaces cut; the whole item when it has no "@".
QString Texto_Item(const QString& item);
// What stands behind the first "@"; "" when there is none.
QString Clave_Item(const QString& item);

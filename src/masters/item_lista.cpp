// List items that carry a key.
#include "masters/item_lista.h"

QString Item_Con_Clave(const QString& texto, const QString& clave) {
    return texto + QString(200, u' ') + u'@' + clave;
}

QString Texto_Item(const QString& item) {
    const qsizetype arroba = item.indexOf(u'@');
    QString texto = arroba < 0 ? item : item.left(arroba);
    while (texto.endsWith(u' ')) texto.chop(1);
    return texto;
}

QString Clave_Item(const QString& item) {
    const qsizetype arroba = item.indexOf(u'@');
    return arroba < 0 ? QString() : item.mid(arroba + 1);
}

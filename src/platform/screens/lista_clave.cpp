// List items with a key.
#include "platform/screens/lista_clave.h"

#include <QComboBox>
#include <QListWidget>

namespace {

QString Con_Clave(const QString& texto, const QVariant& clave) {
    return clave.isValid() ? Item_Con_Clave(texto, clave.toString()) : texto;
}

}  // namespace

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

void Agrega_Item(QComboBox* lista, const QString& texto, const QString& clave) {
    lista->addItem(texto, clave);
}

void Agrega_Item(QListWidget* lista, const QString& texto, const QString& clave) {
    auto* item = new QListWidgetItem(texto, lista);
    item->setData(Qt::UserRole, clave);
}

QString Item_Lista(const QComboBox& lista, int indice) {
    if (indice < 0 || indice >= lista.count()) return QString();
    return Con_Clave(lista.itemText(indice), lista.itemData(indice));
}

QString Item_Lista(const QComboBox& lista) {
    return Item_Lista(lista, lista.currentIndex());
}

QString Item_Lista(const QListWidgetItem& item) {
    return Con_Clave(item.text(), item.data(Qt::UserRole));
}

int Busca_Item(const QComboBox& lista, const QString& texto) {
    for (int i = 0; i < lista.count(); ++i)
        if (Item_Lista(lista, i).contains(texto)) return i;
    return -1;
}

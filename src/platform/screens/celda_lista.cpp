// A grid cell edited through a drop-down of fixed texts.
#include "platform/screens/celda_lista.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

QWidget* CeldaLista::createEditor(QWidget* padre, const QStyleOptionViewItem&,
                                  const QModelIndex&) const {
    auto* lista = new QComboBox(padre);
    lista->addItems(opciones_());
    return lista;
}

void CeldaLista::setEditorData(QWidget* editor, const QModelIndex& i) const {
    auto* lista = static_cast<QComboBox*>(editor);
    lista->setCurrentIndex(lista->findText(i.data().toString()));
}

void CeldaLista::setModelData(QWidget* editor, QAbstractItemModel* m, const QModelIndex& i) const {
    const auto* lista = static_cast<QComboBox*>(editor);
    if (lista->currentIndex() >= 0) m->setData(i, lista->currentText());
}

bool CeldaLista::eventFilter(QObject* objeto, QEvent* evento) {
    auto* editor = qobject_cast<QComboBox*>(objeto);
    if (evento->type() != QEvent::KeyPress || !editor || editor->view()->isVisible())
        return QStyledItemDelegate::eventFilter(objeto, evento);
    const int tecla = static_cast<QKeyEvent*>(evento)->key();
    // The editor stands on the view's viewport.
    QWidget* vista = editor->parentWidget() ? editor->parentWidget()->parentWidget() : nullptr;
    if ((tecla != Qt::Key_Up && tecla != Qt::Key_Down) || !qobject_cast<QAbstractItemView*>(vista))
        return QStyledItemDelegate::eventFilter(objeto, evento);
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
    QApplication::sendEvent(vista, evento);
    return true;
}

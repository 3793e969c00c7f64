// A grid cell edited through a drop-down of fixed texts.
#pragma once

#include <QComboBox>
#include <QStyledItemDelegate>
#include <functional>

class CeldaLista : public QStyledItemDelegate {
public:
    // `opciones` is asked each time a cell opens, so the list can follow the test in hand.
    CeldaLista(std::function<QStringList()> opciones, QObject* padre)
        : QStyledItemDelegate(padre), opciones_(std::move(opciones)) {}

    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem&, const QModelIndex&) const override {
        auto* lista = new QComboBox(padre);
        lista->addItems(opciones_());
        return lista;
    }
    void setEditorData(QWidget* editor, const QModelIndex& i) const override {
        static_cast<QComboBox*>(editor)->setCurrentText(i.data().toString());
    }
    void setModelData(QWidget* editor, QAbstractItemModel* m, const QModelIndex& i) const override {
        m->setData(i, static_cast<QComboBox*>(editor)->currentText());
    }

private:
    std::function<QStringList()> opciones_;
};

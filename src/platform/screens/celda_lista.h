// A grid cell edited through a drop-down of fixed texts, typed from the keyboard: a letter
// picks its text, Enter keeps it, and the up and down arrows go to the cell above or below.
#pragma once

#include <QStyledItemDelegate>
#include <functional>

class CeldaLista : public QStyledItemDelegate {
  public:
    // `opciones` is asked each time a cell opens, so the list can follow the test in hand.
    CeldaLista(std::function<QStringList()> opciones, QObject* padre)
        : QStyledItemDelegate(padre), opciones_(std::move(opciones)) {}

    QWidget* createEditor(QWidget* padre, const QStyleOptionViewItem&,
                          const QModelIndex&) const override;
    // The list opens on the cell's text; a blank cell, or a text not on offer, opens with
    // nothing chosen.
    void setEditorData(QWidget* editor, const QModelIndex& i) const override;
    // The cell changes only when a text was chosen: a cell opened and left stays as it was.
    void setModelData(QWidget* editor, QAbstractItemModel* m, const QModelIndex& i) const override;

  protected:
    // The arrows leave the cell instead of stepping through the list, so a cell passed over
    // keeps its text.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    std::function<QStringList()> opciones_;
};

// Shows a Grilla in a QTableView: cells as text, heads from row 0 and column 0 (letters and
// numbers where a head is empty), cell colours, spans applied by AplicaSpans.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "platform/grilla.h"

class GrillaModelo : public QAbstractTableModel {
    Q_OBJECT
public:
    // The grid must outlive the model; the model listens to its changes.
    explicit GrillaModelo(Grilla& grilla, QObject* padre = nullptr);
    ~GrillaModelo() override;

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;
    bool setData(const QModelIndex& indice, const QVariant& valor, int rol) override;

    // Lets the operator type in one column (from 1); the others stay read only.
    void Editable(int columna) { editable_ = columna; }

    // Copies the grid's spans onto a view.
    void AplicaSpans(QTableView& vista) const;

private:
    Grilla& grilla_;
    int editable_ = 0;
};

// The colour of the system (red in the low byte) as a Qt colour.
QColor Color_Qt(int color);

// Qt model over a working grid.
#include "platform/screens/grilla_modelo.h"

#include <QColor>

QColor Color_Qt(int color) { return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF); }

GrillaModelo::GrillaModelo(Grilla& grilla, QObject* padre)
    : QAbstractTableModel(padre), grilla_(grilla) {
    grilla_.al_cambiar_forma = [this] {
        beginResetModel();
        endResetModel();
    };
    grilla_.al_cambiar_celda = [this](int fila, int columna) {
        if (fila == 0 || columna == 0) {
            const auto o = fila == 0 ? Qt::Horizontal : Qt::Vertical;
            const int s = (fila == 0 ? columna : fila) - 1;
            if (s >= 0) Q_EMIT headerDataChanged(o, s, s);
            return;
        }
        const QModelIndex i = index(fila - 1, columna - 1);
        Q_EMIT dataChanged(i, i);
    };
}

GrillaModelo::~GrillaModelo() {
    grilla_.al_cambiar_forma = nullptr;
    grilla_.al_cambiar_celda = nullptr;
}

int GrillaModelo::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : grilla_.MaxRows();
}

int GrillaModelo::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : grilla_.MaxCols();
}

QVariant GrillaModelo::data(const QModelIndex& indice, int rol) const {
    const int f = indice.row() + 1;
    const int c = indice.column() + 1;
    switch (rol) {
        case Qt::DisplayRole:
            return grilla_.Celda(f, c);
        case Qt::BackgroundRole: {
            const int color = grilla_.BackColor(f, c);
            return color < 0 ? QVariant() : QVariant(Color_Qt(color));
        }
        case Qt::ForegroundRole: {
            const int color = grilla_.ForeColor(f, c);
            return color < 0 ? QVariant() : QVariant(Color_Qt(color));
        }
        default:
            return {};
    }
}

QVariant GrillaModelo::headerData(int seccion, Qt::Orientation orientacion, int rol) const {
    if (rol != Qt::DisplayRole) return {};
    if (orientacion == Qt::Horizontal) {
        const QString cabeza = grilla_.Celda(0, seccion + 1);
        if (!cabeza.isEmpty()) return cabeza;
        QString letras;
        for (int n = seccion + 1; n > 0; n = (n - 1) / 26)
            letras.prepend(QChar(u'A' + (n - 1) % 26));
        return letras;
    }
    const QString cabeza = grilla_.Celda(seccion + 1, 0);
    return cabeza.isEmpty() ? QString::number(seccion + 1) : cabeza;
}

Qt::ItemFlags GrillaModelo::flags(const QModelIndex& indice) const {
    const Qt::ItemFlags f = QAbstractTableModel::flags(indice);
    return indice.column() + 1 == editable_ ? f | Qt::ItemIsEditable : f;
}

bool GrillaModelo::setData(const QModelIndex& indice, const QVariant& valor, int rol) {
    if (rol != Qt::EditRole || indice.column() + 1 != editable_) return false;
    grilla_.FijaCelda(indice.row() + 1, indice.column() + 1, valor.toString());
    return true;
}

void GrillaModelo::AplicaSpans(QTableView& vista) const {
    vista.clearSpans();
    for (const auto& s : grilla_.Spans())
        if (s.fila >= 1 && s.columna >= 1) vista.setSpan(s.fila - 1, s.columna - 1, s.filas, s.columnas);
}

// The working grid.
#include "platform/grilla.h"

#include "platform/error_ejecucion.h"

Grilla::Grilla(int filas, int columnas) {
    SetMaxCols(columnas);
    SetMaxRows(filas);
}

void Grilla::SetMaxRows(int filas) {
    filas_ = std::max(0, filas);
    celdas_.resize(filas_ + 1, std::vector<QString>(columnas_ + 1));
    std::erase_if(colores_, [&](const auto& c) { return c.first.first > filas_; });
    Avisa_Forma();
}

void Grilla::SetMaxCols(int columnas) {
    columnas_ = std::max(0, columnas);
    for (auto& fila : celdas_) fila.resize(columnas_ + 1);
    std::erase_if(colores_, [&](const auto& c) { return c.first.second > columnas_; });
    Avisa_Forma();
}

bool Grilla::Dentro(int fila, int columna) const {
    return fila >= 0 && fila <= filas_ && columna >= 0 && columna <= columnas_;
}

void Grilla::Exige_Dentro(int fila, int columna) const {
    if (!Dentro(fila, columna))
        throw ErrorEjecucion(
            QStringLiteral("Celda fuera de la grilla: fila %1, columna %2 de %3 por %4")
                .arg(fila)
                .arg(columna)
                .arg(filas_)
                .arg(columnas_));
}

QString Grilla::Celda(int fila, int columna) const {
    return Dentro(fila, columna) ? celdas_[fila][columna] : QString();
}

void Grilla::FijaCelda(int fila, int columna, const QString& texto) {
    Exige_Dentro(fila, columna);
    celdas_[fila][columna] = texto;
    if (al_cambiar_celda) al_cambiar_celda(fila, columna);
}

void Grilla::DeleteRows(int fila, int cantidad) {
    if (fila < 1 || fila > filas_ || cantidad <= 0) return;
    const int hasta = std::min(filas_ + 1, fila + cantidad);
    celdas_.erase(celdas_.begin() + fila, celdas_.begin() + hasta);
    celdas_.resize(filas_ + 1, std::vector<QString>(columnas_ + 1));
    std::map<std::pair<int, int>, Colores> movidos;
    for (const auto& [pos, c] : colores_) {
        if (pos.first < fila)
            movidos[pos] = c;
        else if (pos.first >= hasta)
            movidos[{pos.first - (hasta - fila), pos.second}] = c;
    }
    colores_ = std::move(movidos);
    Avisa_Forma();
}

void Grilla::Limpia() {
    for (int f = 1; f <= filas_; ++f)
        for (int c = 1; c <= columnas_; ++c) celdas_[f][c].clear();
    Avisa_Forma();
}

int Grilla::BackColor(int fila, int columna) const {
    const auto it = colores_.find({fila, columna});
    return it == colores_.end() ? -1 : it->second.fondo;
}

int Grilla::ForeColor(int fila, int columna) const {
    const auto it = colores_.find({fila, columna});
    return it == colores_.end() ? -1 : it->second.letra;
}

void Grilla::SetBackColor(int fila, int columna, int color) {
    Exige_Dentro(fila, columna);
    colores_[{fila, columna}].fondo = color;
    if (al_cambiar_celda) al_cambiar_celda(fila, columna);
}

void Grilla::SetForeColor(int fila, int columna, int color) {
    Exige_Dentro(fila, columna);
    colores_[{fila, columna}].letra = color;
    if (al_cambiar_celda) al_cambiar_celda(fila, columna);
}

void Grilla::SetBackColorFila(int fila, int color) {
    for (int c = 1; c <= columnas_; ++c) SetBackColor(fila, c, color);
}

void Grilla::AddCellSpan(int columna, int fila, int columnas, int filas) {
    spans_.push_back({columna, fila, columnas, filas});
    Avisa_Forma();
}

void Grilla::Avisa_Forma() {
    if (al_cambiar_forma) al_cambiar_forma();
}

// The per-sheet chain of the reading run: four rows of marks with their search boxes and
// retries, the distance test, the mended right marks, then form, rut and answers.
#include "reading/lectura_hoja.h"

#include <algorithm>

#include "app/estado.h"
#include "platform/error_ejecucion.h"
#include "reading/decodifica_marcas.h"
#include "reading/registro_pagina.h"

namespace {

bool Distancia_Valida(const Marcas& m) {
    return m.distancia() >= kDistanciaMinima && m.distancia() <= kDistanciaMaxima;
}

void Pon_Nivel_Gris(HojaEnLectura& hoja, int16_t nivel) {
    hoja.Nivel_Gris = nivel;
    estado().Nivel_Gris = nivel;
}

// Rows 2 and 3: searched below the left x of the row above. Row 2 retries 40 pixels to the
// right, row 3 retries with the same arguments. False is failure A.
bool Busca_Fila(HojaEnLectura& hoja, int x, int y, int reintento_x, Marcas& m) {
    m = Version_Nueva_Lectura_Cuadros(hoja, x, x, y, y, 1, 0);
    if (hoja.Error_Lectura) return false;
    if (m.X + m.X1 != 0) return true;
    m = Version_Nueva_Lectura_Cuadros(hoja, x + reintento_x, x + reintento_x, y, y, 1, 0);
    return !hoja.Error_Lectura && m.X + m.X1 != 0;
}

}  // namespace

LecturaHoja::LecturaHoja(const Imagen& imagen, const OpcionesLectura& opciones)
    : hoja_(imagen), opciones_(opciones) {
    hoja_.Alternativas_Actual = opciones.alternativas;
    Pon_Nivel_Gris(hoja_, 130);
}

bool LecturaHoja::Falla(Fallo fallo) {
    r.fallo = fallo;
    return false;
}

bool LecturaHoja::Registra(const FilaHallada& hallada) {
    auto avisa = [&](int fila, const Marcas& m) {
        if (hallada) hallada(fila, m);
    };
    auto& [f1, f2, f3] = r.filas;
    f1 = Version_Nueva_Lectura_Cuadros(hoja_, 10, 125, 10, 140, 0, 0);
    if (hoja_.Error_Lectura) return Falla(Fallo::A);
    r.distancia = f1.distancia();
    hoja_.Primer_Y = f1.Y;
    r.marcas_grandes = Verifico_Nuevo_Formato_Guia_Medial(hoja_, 300, f1.X - 20);
    avisa(1, f1);
    if (!Distancia_Valida(f1)) return Falla(Fallo::B);
    if (!Busca_Fila(hoja_, f1.X, 610, 40, f2)) return Falla(Fallo::A);
    avisa(2, f2);
    if (!Distancia_Valida(f2)) return Falla(Fallo::B);
    if (!Busca_Fila(hoja_, f2.X, 1072, 0, f3)) return Falla(Fallo::A);
    avisa(3, f3);
    if (!Distancia_Valida(f3)) return Falla(Fallo::B);
    // The fourth mark, a left one only; only its y is kept.
    Marcas m = Version_Nueva_Lectura_Cuadros(hoja_, f3.X, f3.X, 1540, 1540, 1, 99);
    if (hoja_.Error_Lectura) return r.sin_aviso = true, Falla(Fallo::A);
    if (m.X < 1) m = Version_Nueva_Lectura_Cuadros(hoja_, f3.X, f3.X, 1540, 1540, 1, 99);
    if (hoja_.Error_Lectura) return r.sin_aviso = true, Falla(Fallo::A);
    if (m.X < 1) return Falla(Fallo::A);
    avisa(4, m);
    r.cuarta_y = m.Y;
    Verifica_Diferencia_Cuadros_Derecha(f1.X1, f2.X1, f3.X1);
    return true;
}

bool LecturaHoja::Lee_Forma() {
    Pon_Nivel_Gris(hoja_, 180);
    r.forma = Busca_Forma(hoja_, r.filas[0]);
    return !hoja_.Error_Lectura || Falla(Fallo::C);
}

bool LecturaHoja::Lee_Rut() {
    r.rut = Lee_Solo_Rut_New_Ver(hoja_, r.filas[0]);
    if (hoja_.Error_Lectura) return Falla(Fallo::C);
    r.rut_leido = true;
    return true;
}

int LecturaHoja::Limite_Respuestas() const {
    return std::min(opciones_.preguntas, r.marcas_grandes ? 18 : 50);
}

bool LecturaHoja::Lee_Respuestas() {
    lee_alternativas_version_2(hoja_, r.filas[1], 1, Limite_Respuestas(), 2, r.marcas_grandes,
                               r.marcas_grandes ? 1823 : 0, r.respuestas);
    return !hoja_.Error_Lectura || Falla(Fallo::C);
}

bool LecturaHoja::Lee_Respuestas_Tercera() {
    if (r.marcas_grandes || opciones_.preguntas < 51) return true;
    lee_alternativas_version_2(hoja_, r.filas[2], 51, opciones_.preguntas, 3, false, 0,
                               r.respuestas);
    return !hoja_.Error_Lectura || Falla(Fallo::C);
}

Imagen Abre_Hoja(const QString& ruta) {
    constexpr int kLadoMinimo = 100;
    Imagen imagen = Imagen::Abre(ruta);
    if (imagen.ancho() < kLadoMinimo || imagen.alto() < kLadoMinimo)
        throw ErrorEjecucion(
            QStringLiteral("La imagen de %1 x %2 píxeles es demasiado pequeña para ser una hoja")
                .arg(imagen.ancho())
                .arg(imagen.alto()));
    return imagen;
}

ResultadoHoja Lee_Hoja(const Imagen& imagen, const OpcionesLectura& opciones) {
    LecturaHoja l(imagen, opciones);
    if (l.Registra() && l.Lee_Forma() && (!opciones.lee_rut || l.Lee_Rut()) && l.Lee_Respuestas())
        l.Lee_Respuestas_Tercera();
    return l.r;
}

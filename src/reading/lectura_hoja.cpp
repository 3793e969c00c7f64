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

bool Falla(ResultadoHoja& r, Fallo fallo) {
    r.fallo = fallo;
    return false;
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

// The fourth mark, a left one only; only its y is kept. False is failure A.
bool Busca_Cuarta(HojaEnLectura& hoja, int x, int& y) {
    Marcas m = Version_Nueva_Lectura_Cuadros(hoja, x, x, 1540, 1540, 1, 99);
    if (hoja.Error_Lectura) return false;
    if (m.X < 1) m = Version_Nueva_Lectura_Cuadros(hoja, x, x, 1540, 1540, 1, 99);
    if (hoja.Error_Lectura || m.X < 1) return false;
    y = m.Y;
    return true;
}

// Finds the four rows of marks; sets the failure kind when a row is missing or out of size.
bool Registra(HojaEnLectura& hoja, ResultadoHoja& r) {
    auto& [f1, f2, f3] = r.filas;
    f1 = Version_Nueva_Lectura_Cuadros(hoja, 10, 125, 10, 140, 0, 0);
    if (hoja.Error_Lectura) return Falla(r, Fallo::A);
    r.distancia = f1.distancia();
    hoja.Primer_Y = f1.Y;
    r.marcas_grandes = Verifico_Nuevo_Formato_Guia_Medial(hoja, 300, f1.X - 20);
    if (!Distancia_Valida(f1)) return Falla(r, Fallo::B);
    if (!Busca_Fila(hoja, f1.X, 610, 40, f2)) return Falla(r, Fallo::A);
    if (!Distancia_Valida(f2)) return Falla(r, Fallo::B);
    if (!Busca_Fila(hoja, f2.X, 1072, 0, f3)) return Falla(r, Fallo::A);
    if (!Distancia_Valida(f3)) return Falla(r, Fallo::B);
    if (!Busca_Cuarta(hoja, f3.X, r.cuarta_y)) return Falla(r, Fallo::A);
    Verifica_Diferencia_Cuadros_Derecha(f1.X1, f2.X1, f3.X1);
    return true;
}

// Form, rut and answers at gray 180; false with failure C when a reader fails.
bool Decodifica(HojaEnLectura& hoja, const OpcionesLectura& o, ResultadoHoja& r) {
    const auto& [f1, f2, f3] = r.filas;
    Pon_Nivel_Gris(hoja, 180);
    r.forma = Busca_Forma(hoja, f1);
    if (hoja.Error_Lectura) return false;
    if (o.lee_rut) {
        r.rut = Lee_Solo_Rut_New_Ver(hoja, f1);
        if (hoja.Error_Lectura) return false;
        r.rut_leido = true;
    }
    const int limite = std::min(o.preguntas, r.marcas_grandes ? 18 : 50);
    lee_alternativas_version_2(hoja, f2, 1, limite, 2, r.marcas_grandes,
                               r.marcas_grandes ? 1823 : 0, r.respuestas);
    if (hoja.Error_Lectura) return false;
    // Questions 19 and up of a large-mark sheet stay unread: there is no second call.
    if (!r.marcas_grandes && o.preguntas >= 51)
        lee_alternativas_version_2(hoja, f3, 51, o.preguntas, 3, false, 0, r.respuestas);
    return !hoja.Error_Lectura;
}

}  // namespace

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
    HojaEnLectura hoja(imagen);
    hoja.Alternativas_Actual = opciones.alternativas;
    Pon_Nivel_Gris(hoja, 130);
    ResultadoHoja r;
    if (Registra(hoja, r) && !Decodifica(hoja, opciones, r)) r.fallo = Fallo::C;
    return r;
}

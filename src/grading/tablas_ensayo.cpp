// The PSU and SIMCE practice runs: their loads from the store.
#include "grading/tablas_ensayo.h"

#include "app/estado.h"
#include "grading/puntajes_ensayo.h"
#include "platform/base_datos.h"
#include "platform/numeros.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

const char* const kNiveles[] = {"INICIAL", "INTERMEDIO", "AVANZADO"};

}  // namespace

TablasPsu::TablasPsu() {
    const char* const cabezas[] = {"Rut",        "Nombre",     "Buenas",     "Malas",
                                   "Nulas",      "Omitidas",   "Nivel Bajo", "Nivel Medio",
                                   "Nivel Alto", "Puntaje PSU"};
    for (int c = 1; c <= 10; ++c) SprPSU.FijaCelda(0, c, QString::fromUtf8(cabezas[c - 1]));
}

void TablasPsu::Carga_Psu() {
    Tipo_Prueba();
    Carga_Puntajes_PSU();
    Carga_Todos_Rut_Prueba(SprPSU);
    Pongo_Aciertos();
    Genere_Grafico_Prueba();
}

// The practice test's minimum and maximum score, by its subject.
void TablasPsu::Tipo_Prueba() {
    const QString asignatura = estado().Asignatura_Actual;
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" SELECT puntaje_min, puntaje_max, nombre_psu  From puntajes_psu_new"));
    for (; !rs.Eof(); rs.MoveNext()) {
        if (Sin_Espacios(rs["nombre_psu"].toString()) != asignatura) continue;
        Base_Psu = rs["puntaje_min"].toString();
        Maximo_Psu = rs["puntaje_max"].toString();
    }
    if (!Base_Psu.isEmpty()) return;
    Recordset viejo =
        Base().OpenRecordset(QStringLiteral(" SELECT *  From puntajes_psu where codigo_tema = 4"));
    for (; !viejo.Eof(); viejo.MoveNext()) {
        Base_Psu = viejo["puntaje_min"].toString();
        Maximo_Psu = viejo["puntaje_max"].toString();
    }
}

void TablasPsu::Carga_Puntajes_PSU() {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select numero_pregunta, puntaje_obtenido from Puntajes_PSU_DINAMICO "
                       " where nombre_psu =  ?"),
        {estado().Asignatura_Actual});
    for (; !rs.Eof(); rs.MoveNext()) {
        const int fila = Spr_Puntaje_PSU.MaxRows() + 1;
        Spr_Puntaje_PSU.SetMaxRows(fila);
        Spr_Puntaje_PSU.FijaCelda(fila, 1, rs[0].toString());
        Spr_Puntaje_PSU.FijaCelda(fila, 2, rs[1].toString());
    }
}

// Without a minimum and a maximum score only the ruts and names are shown.
void TablasPsu::Pongo_Aciertos() {
    for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila) {
        Recordset rs = Base().OpenRecordset(
            QStringLiteral(" select buenas , malas, omitidas , nulas from ResultadoAlumnos_rj "
                           " where rut = ? and     idprueba = ? order by rut "),
            {SprPSU.Celda(fila, 1), estado().Id_Prueba_Actual});
        if (Val(Base_Psu) == 0 || Val(Maximo_Psu) == 0) return;
        for (; !rs.Eof(); rs.MoveNext()) Pon_Fila(fila, rs);
    }
}

// One row of results; a later row of the same student overwrites it.
void TablasPsu::Pon_Fila(int fila, const Recordset& rs) {
    const int16_t buenas = CInt(rs["buenas"].toDouble());
    const char* const campos[] = {"buenas", "malas", "nulas", "omitidas"};
    for (int c = 0; c < 4; ++c) SprPSU.FijaCelda(fila, 3 + c, rs[campos[c]].toString());
    const NivelesPsu n = Calcula_Niveles_Psu(buenas, estado().Preguntas_Actual);
    SprPSU.FijaCelda(fila, 7, CStr(n.bajo));
    SprPSU.FijaCelda(fila, 8, CStr(n.medio));
    SprPSU.FijaCelda(fila, 9, CStr(n.alto));
    const QString puntaje = Puntaje_Tabla(buenas);
    if (!puntaje.isNull()) SprPSU.FijaCelda(fila, 10, puntaje);
}

// The score of the first row of the table for that many right answers; null without one.
QString TablasPsu::Puntaje_Tabla(int16_t buenas) const {
    for (int r = 1; r <= Spr_Puntaje_PSU.MaxRows(); ++r)
        if (Val(Spr_Puntaje_PSU.Celda(r, 1)) == buenas) return Spr_Puntaje_PSU.Celda(r, 2);
    return QString();
}

void TablasPsu::Genere_Grafico_Prueba() {
    std::vector<std::vector<double>> datos(15, std::vector<double>{0});
    for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila)
        if (const int banda = Banda_Psu(Val(SprPSU.Celda(fila, 8)))) ++datos[banda - 1][0];
    MSChart1.ChartData(Rangos_Psu(), datos);
    MSChart1.Refresh();
}

TablasSimce::TablasSimce() {
    const char* const cabezas[] = {"Rut",      "Nombre", "Buenas",         "Malas",
                                   "Omitidas", "Nivel",  "Puntaje Normal", "Puntaje Simce"};
    for (int c = 1; c <= 8; ++c) SprPSU.FijaCelda(0, c, QString::fromUtf8(cabezas[c - 1]));
    SprNiveles.FijaCelda(0, 1, QStringLiteral("Nivel"));
    SprNiveles.FijaCelda(0, 2, QStringLiteral("Alumnos"));
    SprNiveles.FijaCelda(0, 3, QStringLiteral("Promedio Simce"));
    for (int r = 1; r <= 3; ++r) SprNiveles.FijaCelda(r, 1, QString::fromUtf8(kNiveles[r - 1]));
}

void TablasSimce::Carga_Simce() {
    Tipo_Prueba();
    Carga_Todos_Rut_Prueba(SprPSU);
    Pongo_Aciertos();
    Calcula_Promedio_Nivel();
    Genere_Grafico_Prueba();
}

void TablasSimce::Tipo_Prueba() {
    Recordset rs = Base().OpenRecordset(QStringLiteral(" SELECT *  From puntaje_simce"));
    for (; !rs.Eof(); rs.MoveNext()) {
        Base_Simce = rs["puntaje_minimo"].toString();
        Maximo_Simce = rs["puntaje_maximo"].toString();
    }
}

void TablasSimce::Pongo_Aciertos() {
    const Estado& e = estado();
    const int16_t nivel_curso = Nivel_Curso(e.Curso_Actual);
    int16_t x = 0;  // a student without right answers keeps the x of the row before
    for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila) {
        Recordset rs = Base().OpenRecordset(
            QStringLiteral(" select buenas , malas, omitidas  from ResultadoAlumnos_rj "
                           " where rut = ? and     idprueba = ? order by rut "),
            {SprPSU.Celda(fila, 1), e.Id_Prueba_Actual});
        int16_t buenas = 0;
        for (; !rs.Eof(); rs.MoveNext()) {
            buenas = CInt(rs["buenas"].toDouble());
            for (int c = 0; c < 3; ++c) SprPSU.FijaCelda(fila, c + 3, rs[c].toString());
        }
        SprPSU.FijaCelda(fila, 7, CStr(Puntaje_Normal_Simce(buenas, e.Ptje_Max_Actual)));
        if (buenas != 0) x = Puntaje_Simce(buenas, e.Ptje_Max_Actual);
        SprPSU.FijaCelda(fila, 8, buenas == 0 ? QStringLiteral("0") : CStr(x));
        SprPSU.FijaCelda(fila, 6, Nivel_Simce(nivel_curso, e.Asignatura_Actual, x));
    }
}

// Students and average "Puntaje Simce" of each level.
void TablasSimce::Calcula_Promedio_Nivel() {
    for (int r = 1; r <= 3; ++r) {
        int alumnos = 0;
        double suma = 0;
        for (int fila = 1; fila <= SprPSU.MaxRows(); ++fila) {
            if (SprPSU.Celda(fila, 6) != SprNiveles.Celda(r, 1)) continue;
            ++alumnos;
            suma += Val(SprPSU.Celda(fila, 8));
        }
        SprNiveles.FijaCelda(r, 2, CStr(alumnos));
        SprNiveles.FijaCelda(r, 3, CStr(alumnos == 0 ? 0.0 : Round(suma / alumnos, 1)));
    }
}

void TablasSimce::Genere_Grafico_Prueba() {
    QStringList etiquetas;
    std::vector<std::vector<double>> datos;
    for (int r = 1; r <= 3; ++r) {
        etiquetas << SprNiveles.Celda(r, 1);
        datos.push_back({Val(SprNiveles.Celda(r, 2))});
    }
    MSChart1.chartType = GraficoBarras2D;
    MSChart1.ChartData(etiquetas, datos);
    MSChart1.Refresh();
}

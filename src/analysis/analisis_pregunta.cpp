// The per-question analysis: the two sorted lists, their walk and the tables it fills.
#include "analysis/analisis_pregunta.h"

#include <QDate>
#include <functional>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/grilla.h"
#include "platform/numeros.h"

namespace {

// Tallies one answer `alternativa` of a question whose right answer is `correcta`.
using Cuenta = std::function<void(std::vector<int>&, double alternativa, double correcta)>;

void Carga_Lista(Grilla& lista, const QString& tabla, int16_t forma) {
    lista.SetMaxRows(0);
    lista.SetMaxRows(1);
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" select pregunta,alternativa From ") + tabla +
            QStringLiteral("  Where idprueba = ? and forma = ? order by pregunta, alternativa"),
        {estado().Id_Prueba_Actual, forma});
    bool leida = false;
    for (; !rs.Eof(); rs.MoveNext(), leida = true) {
        const int fila = lista.MaxRows();
        lista.FijaCelda(fila, 1, rs[0].toString());
        lista.FijaCelda(fila, 2, rs[1].toString());
        lista.SetMaxRows(fila + 1);
    }
    // Without a record the one empty row stays: the first walk stops on it.
    if (leida) lista.SetMaxRows(lista.MaxRows() - 1);
}

// Counts and shares of one row, two columns a counter from column 1.
void Escribe_Fila(Grilla& tabla, int fila, const std::vector<int>& cuentas) {
    int total = 0;
    for (int c : cuentas) total += c;
    for (size_t k = 0; k < cuentas.size(); ++k) {
        const int columna = 2 * static_cast<int>(k) + 1;
        tabla.FijaCelda(fila, columna, cuentas[k] < 1 ? QStringLiteral("0") : CStr(cuentas[k]));
        tabla.FijaCelda(fila, columna + 1, Porcentaje_Pregunta(cuentas[k], total));
    }
}

// For each key entry: walk the answers of its question from row 1, write the table's last row,
// and delete the rows walked. An empty answer row stops the whole fill after its question.
void Recorre_Pauta(Grilla& respuestas, const Grilla& pauta, Grilla& tabla, int contadores,
                   const Cuenta& cuenta) {
    tabla.SetMaxRows(0);
    tabla.SetMaxRows(1);
    for (int r = 1; r <= pauta.MaxRows(); ++r) {
        const double pregunta = Val(pauta.Celda(r, 1));
        const double correcta = Val(pauta.Celda(r, 2));
        std::vector<int> cuentas(contadores, 0);
        const int hasta = respuestas.MaxRows();
        bool parar = false;
        int i = 1;
        for (; i <= hasta; ++i) {
            if (respuestas.Celda(i, 2).isEmpty()) {
                parar = true;
                break;
            }
            if (Val(respuestas.Celda(i, 1)) != pregunta) break;
            cuenta(cuentas, Val(respuestas.Celda(i, 2)), correcta);
        }
        Escribe_Fila(tabla, tabla.MaxRows(), cuentas);
        if (parar) return;
        tabla.SetMaxRows(tabla.MaxRows() + 1);
        for (int d = 1; d <= i - 1; ++d) respuestas.DeleteRows(1, 1);
    }
}

}  // namespace

QString Porcentaje_Pregunta(int cantidad, int total) {
    if (cantidad < 1) return QStringLiteral("0");
    return CStr(Round(static_cast<double>(cantidad) / total * 100, 0));
}

void Carga_Grafico_Aciertos(int16_t forma, Grilla& Spr_Pregunta_Respuesta,
                            Grilla& Spr_Respuesta_Pauta) {
    Carga_Lista(Spr_Pregunta_Respuesta, QStringLiteral("respuesta_alumnos_por_rut"), forma);
    Carga_Lista(Spr_Respuesta_Pauta, QStringLiteral("resp_preguntas_pautas"), forma);
}

void Pongo_Aciertos(Grilla& Spr_Pregunta_Respuesta, const Grilla& Spr_Respuesta_Pauta,
                    Grilla& SprAciertos) {
    // Counters: buenas, malas, omitidas. A code 6 that the key holds is right.
    Recorre_Pauta(Spr_Pregunta_Respuesta, Spr_Respuesta_Pauta, SprAciertos, 3,
                  [](std::vector<int>& c, double alternativa, double correcta) {
                      if (alternativa == correcta)
                          ++c[0];
                      else if (alternativa == kOmitida)
                          ++c[2];
                      else
                          ++c[1];
                  });
}

void Pongo_Frecuencias(Grilla& Spr_Pregunta_Respuesta, const Grilla& Spr_Respuesta_Pauta,
                       Grilla& SprFrecuencia) {
    // Counters for codes 1 to 6; any other code is counted in none.
    Recorre_Pauta(Spr_Pregunta_Respuesta, Spr_Respuesta_Pauta, SprFrecuencia, 6,
                  [](std::vector<int>& c, double alternativa, double) {
                      for (int codigo = 1; codigo <= kOmitida; ++codigo)
                          if (alternativa == codigo) ++c[codigo - 1];
                  });
}

std::vector<std::vector<double>> Datos_Grafico_Aciertos(const Grilla& SprAciertos) {
    std::vector<std::vector<double>> datos;
    for (int r = 1; r <= SprAciertos.MaxRows(); ++r)
        datos.push_back({CSng(Val(SprAciertos.Celda(r, 3))), CSng(Val(SprAciertos.Celda(r, 1))),
                         CSng(Val(SprAciertos.Celda(r, 5)))});
    return datos;
}

void Agrega_Datos_Prueba(Grilla& grilla) {
    const Estado& e = estado();
    const QString lineas[] = {
        QStringLiteral("Nombre Prueba : ") + e.Nombre_Prueba_Actual,
        QStringLiteral("Profesor      : ") + e.Profesor_Actual,
        QStringLiteral("Curso         : ") + e.Curso_Actual,
        QStringLiteral("Tipo Prueba   : ") + e.Tipo_Prueba_Actual,
        QStringLiteral("Asignatura    : ") + e.Asignatura_Actual,
        QStringLiteral("Fecha         : ") + Fecha_Texto(QDate::currentDate()),
    };
    for (int r = 2; r <= std::min(7, grilla.MaxRows()); ++r)
        grilla.FijaCelda(r, grilla.MaxCols(), lineas[r - 2]);
}

QString Archivo_Forma(const QString& nombre, int forma) {
    const qsizetype punto = nombre.indexOf(QLatin1Char('.'));
    const QString base = punto < 0 ? nombre : nombre.left(punto);
    const QString extension = punto < 0 ? QStringLiteral(".xlsx") : nombre.mid(punto + 1);
    return base + QStringLiteral("_FORMA_") + QString::number(forma) + QStringLiteral(".") +
           extension;
}

namespace {

// Pairs of heads from column 1, then the spacer and the test's identity.
void Cabezas(Grilla& grilla, const QString& cantidad, int pares) {
    for (int k = 0; k < pares; ++k) {
        grilla.FijaCelda(0, 2 * k + 1, cantidad);
        grilla.FijaCelda(0, 2 * k + 2, QStringLiteral("%"));
    }
    grilla.FijaCelda(0, 2 * pares + 1, QStringLiteral(" "));
    grilla.FijaCelda(0, 2 * pares + 2, QStringLiteral("Descripción Prueba"));
}

}  // namespace

void TablasPregunta::Setea_Grilla() {
    Cabezas(SprAciertos, QStringLiteral("Cantidad"), 3);
}

void TablasPregunta::Setea_Grilla_Fre() {
    Cabezas(SprFrecuencia, QStringLiteral("Cant."), 6);
}

void TablasPregunta::Calcula_Forma(int16_t forma) {
    // Each fill consumes the answers: they are read again for the second table.
    Carga_Grafico_Aciertos(forma, Spr_Pregunta_Respuesta, Spr_Respuesta_Pauta);
    Pongo_Aciertos(Spr_Pregunta_Respuesta, Spr_Respuesta_Pauta, SprAciertos);
    Carga_Grafico_Aciertos(forma, Spr_Pregunta_Respuesta, Spr_Respuesta_Pauta);
    Pongo_Frecuencias(Spr_Pregunta_Respuesta, Spr_Respuesta_Pauta, SprFrecuencia);
    Genero_Grafico();
}

void TablasPregunta::Genero_Grafico() {
    const auto datos = Datos_Grafico_Aciertos(SprAciertos);
    QStringList preguntas;
    for (size_t r = 1; r <= datos.size(); ++r) preguntas << QString::number(r);
    MSChart1.series = {QStringLiteral("Malas"), QStringLiteral("Buenas"),
                       QStringLiteral("Omitidas")};
    MSChart1.ChartData(preguntas, datos);
    MSChart1.chartType = GraficoBarras2D;
    MSChart1.Refresh();
}

// Exporta_Planilla: the start and end common to every report, the generic copy of a grid and
// the layouts of kinds 1 to 4.
#include "analysis/exporta_planilla.h"

#include <QCursor>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QStandardPaths>

#include "analysis/analisis_pregunta.h"
#include "analysis/exporta_comun.h"
#include "app/estado.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "platform/grafico.h"
#include "platform/grilla.h"

namespace {

// The hourglass while the export runs, where there is a screen to show it.
struct Reloj {
    const bool activo = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    Reloj() {
        if (activo) QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    }
    ~Reloj() {
        if (activo) QGuiApplication::restoreOverrideCursor();
    }
};

// Offsets of the generic copy: rows R, columns C, and numbering of the rows (kind 1).
struct Copia {
    int R = 0;
    int C = 0;
    bool numera = false;
};

// The numbers test the text under the cursor's column as it stands: the copy moves it after.
void Copia_Generica(Hoja& hoja, Grilla& g, int16_t Tipo, Copia k) {
    if (k.numera) {
        for (int i = 1; i <= g.MaxRows(); ++i) {
            g.Row = i;
            if (!Marcada(g.Text())) hoja.Cells(k.C + i + 1, 1).Value(i);
        }
        k.C = 1;
    }
    if (Tipo == 2) {
        const Estado& e = estado();
        const QString datos[] = {e.Curso_Actual, e.Nombre_Prueba_Actual, e.Asignatura_Actual,
                                 e.Profesor_Actual};
        for (int c = 0; c < 4; ++c) hoja.Cells(2, c + 1).Value(datos[c]);
        k.C = 5;
    }
    for (int i = 1; i <= g.MaxRows(); ++i)
        for (int j = 1; j <= g.MaxCols(); ++j) {
            g.Col = j;
            g.Row = i;
            if (!Marcada(g.Text())) hoja.Cells(k.R + i + 1, k.C + j).Value(g.Text());
        }
}

void Anchos(Hoja& hoja, const QString& columnas, const std::vector<double>& anchos) {
    for (size_t i = 0; i < anchos.size(); ++i)
        if (anchos[i] > 0)
            hoja.Range(columnas[i] + QStringLiteral(":") + columnas[i]).ColumnWidth(anchos[i]);
}

// A column without title keeps no heading style either.
void Titulos_Fila_1(Hoja& hoja, const QStringList& titulos) {
    for (int c = 1; c <= titulos.size(); ++c)
        if (!titulos[c - 1].isEmpty()) Celda_Encabezado(hoja, 1, c);
    for (int c = 1; c <= titulos.size(); ++c)
        if (!titulos[c - 1].isEmpty()) Titulo(hoja.Cells(1, c), titulos[c - 1]);
}

void Planilla_Tipo_1(Hoja& hoja, Grilla& g1, Grilla& g2, const FuentesExportacion& f) {
    for (int fila = 1; fila <= 2; ++fila)
        for (int c = 1; c <= 20; ++c)
            if (c != 8) Celda_Encabezado(hoja, fila, c);
    const char* dos[] = {"Cantidad", "%"};
    hoja.Cells(2, 1).Value(QStringLiteral("Pregunta"));
    for (int c = 2; c <= 7; ++c) hoja.Cells(2, c).Value(QString::fromUtf8(dos[c % 2]));
    Titulo(hoja.Range(QStringLiteral("b1:c1")), QStringLiteral("BUENAS"));
    Titulo(hoja.Range(QStringLiteral("d1:e1")), QStringLiteral("MALAS"));
    Titulo(hoja.Range(QStringLiteral("f1:g1")), QStringLiteral("OMITIDAS"));
    hoja.Name = QStringLiteral("Aciertos y Frecuencia");
    Pega_Grafico(hoja, f.grafico, 200, 750);
    Copia_Generica(hoja, g1, 1, {1, 1, true});
    const char* rangos[] = {"i1:j1", "k1:l1", "m1:n1", "o1:p1", "q1:r1", "s1:t1"};
    const char* titulos[] = {"ALTERNATIVA A", "ALTERNATIVA B", "ALTERNATIVA C",
                             "ALTERNATIVA D", "ALTERNATIVA E", "OMITIDAS"};
    for (int k = 0; k < 6; ++k) {
        Titulo(hoja.Range(QString::fromLatin1(rangos[k])), QString::fromLatin1(titulos[k]));
        hoja.Cells(2, 9 + 2 * k).Value(QStringLiteral("Cantidad"));
        hoja.Cells(2, 10 + 2 * k).Value(QStringLiteral("Porcentaje"));
    }
    for (int i = 1; i <= g2.MaxRows(); ++i)
        for (int j = 0; j <= g2.MaxCols() - 1; ++j) {
            g2.Col = j;
            g2.Row = i;
            if (!Marcada(g2.Text())) hoja.Cells(i + 2, j + 8).Value(g2.Text());
        }
}

void Planilla_Tipo_2(Hoja& hoja, Grilla& g, const FuentesExportacion& f) {
    Titulos_Fila_1(hoja,
                   {QStringLiteral("CURSO"), QStringLiteral("PRUEBA"), QStringLiteral("ASIGNATURA"),
                    QStringLiteral("PROFESOR"), QString(), QStringLiteral("RANGO"),
                    QStringLiteral("ALUMNO"), QStringLiteral("PROCENTAJE")});
    hoja.Name = QStringLiteral("Analisis Cualitativo Prueba");
    Pega_Grafico(hoja, f.grafico, 50, 250);
    Copia_Generica(hoja, g, 2, {1, 0, false});
    Anchos(hoja, QStringLiteral("ABCDEFGHIJ"), {10, 10, 25, 50, 2, 10, 10, 10, 2, 50});
}

void Planilla_Tipo_3_4(Hoja& hoja, Grilla& g, int16_t Tipo, const FuentesExportacion& f) {
    if (Tipo == 3) {
        Titulos_Fila_1(hoja, {"RUT", "NOMBRE", "BUENAS", "MALAS", "NULAS", "OMITIDAS", "Nivel Bajo",
                              "Nivel Medio", "Nivel Alto", "Puntaje Corregido"});
        hoja.Name = QStringLiteral("Ensayo PSU");
    } else {
        Titulos_Fila_1(hoja, {"RUT", "NOMBRE", "BUENAS", "MALAS", "OMITIDAS", "NIVEL",
                              "PUNTAJE NORMAL", "PUNTAJE SIMCE"});
        hoja.Name = QStringLiteral("Ensayo SIMCE");
    }
    Pega_Grafico(hoja, f.grafico, 50, 450);
    Copia_Generica(hoja, g, Tipo, {1, 0, false});
    if (Tipo == 3)
        Anchos(hoja, QStringLiteral("ABCDEFG"), {12, 40, 9, 9, 9, 9, 16});
    else
        Anchos(hoja, QStringLiteral("ABCDEFGH"), {10, 40, 15, 15, 15, 16, 16, 16});
}

}  // namespace

void Arma_Planilla(Hoja& hoja, Grilla& Grilla1, Grilla& Grilla2, int16_t Tipo,
                   const FuentesExportacion& fuentes) {
    switch (Tipo) {
        case 1:
            return Planilla_Tipo_1(hoja, Grilla1, Grilla2, fuentes);
        case 2:
            return Planilla_Tipo_2(hoja, Grilla1, fuentes);
        case 3:
        case 4:
            return Planilla_Tipo_3_4(hoja, Grilla1, Tipo, fuentes);
        case 5:
            return Planilla_Tipo_5(hoja, Grilla1, fuentes);
        case 6:
            return Planilla_Tipo_6(hoja, Grilla1, fuentes);
        case 7:
            return Planilla_Tipo_7(hoja, Grilla1, fuentes);
        case 8:
            return Planilla_Tipo_8(hoja, Grilla1);
        case 9:
            return Planilla_Tipo_9(hoja, Grilla1, fuentes);
    }
    Copia_Generica(hoja, Grilla1, Tipo, {});
}

bool Exporta_Planilla(const QString& Ruta, Grilla& Grilla1, Grilla& Grilla2, int16_t Tipo,
                      const FuentesExportacion& fuentes) {
    Reloj reloj;
    try {
        Libro libro;
        Hoja& hoja = libro.Worksheets_Add();
        Arma_Planilla(hoja, Grilla1, Grilla2, Tipo, fuentes);
        libro.Close(true, Ruta);
        return true;
    } catch (const std::exception&) {
        dialogos().MsgBox(QStringLiteral("Ha ocurrido un error inesperado, intentelo nuevamente"),
                          vbExclamation, QStringLiteral("Exportacion Excel"));
        return false;
    }
}

void Exporta_Con_Dialogo(Grilla& grilla, int16_t Tipo, const FuentesExportacion& fuentes) {
    const QString nombre = dialogos().GuardarArchivo(
        QStringLiteral("Exportar Excel"), QStringLiteral("Libro de Excel (*.xlsx)"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (nombre.trimmed().isEmpty()) return;
    if (Exporta_Planilla(nombre, grilla, grilla, Tipo, fuentes))
        dialogos().MsgBox(QStringLiteral(" Datos exportados en ") + nombre, vbInformation,
                          QStringLiteral("Zorta"));
}

QString Exporta_Formas(const QString& nombre, int formas, const std::function<void(int)>& prepara,
                       const std::function<void(const QString&)>& exporta) {
    QString lista;
    for (int k = 1; k <= formas; ++k) {
        prepara(k);
        const QString archivo = Archivo_Forma(nombre, k);
        exporta(archivo);
        lista += QStringLiteral("\r") + archivo + QStringLiteral("\r ");
    }
    return lista;
}

// Exporta_Planilla: the styles and picture shared by every layout, and the layouts of the axis
// and SEP reports (kinds 5 to 9), which name their axes from the axis screen's upper grid.
#include <QDir>
#include <QFile>

#include "analysis/exporta_comun.h"
#include "app/estado.h"
#include "platform/error_ejecucion.h"
#include "platform/grafico.h"
#include "platform/grilla.h"

void Celda_Encabezado(Hoja& hoja, int fila, int columna) {
    hoja.Cells(fila, columna)
        .Interior_ColorIndex(41)
        .Font_size(12)
        .Font_Bold(true)
        .Font_ColorIndex(2);
}

void Titulo(Rango rango, const QString& texto) {
    rango.Font_FontStyle(QStringLiteral("Arial")).Font_size(10).Font_Bold(true).Merge();
    rango.VerticalAlignment(xlCenter).HorizontalAlignment(xlCenter).Value(texto);
}

// The picture goes through a file in the temporary folder, deleted once on the sheet.
void Pega_Grafico(Hoja& hoja, const Grafico* grafico, double izquierda, double arriba) {
    if (!grafico) throw ErrorEjecucion(QStringLiteral("No hay gráfico que copiar"));
    const QString archivo = QDir::temp().filePath(QStringLiteral("imagen_graf.png"));
    grafico->Guarda_Imagen(archivo);
    hoja.AddPicture(archivo, false, true, izquierda, arriba, 600, 300);
    if (QFile::exists(archivo)) QFile::remove(archivo);
}

// Row 26 or beyond with a name has no place in the table: the export fails.
NombresEjes Lee_Nombres(Grilla* superior) {
    if (!superior) throw ErrorEjecucion(QStringLiteral("No hay ejes que nombrar"));
    NombresEjes t;
    superior->Col = 0;
    for (int k = 1; k <= superior->MaxRows(); ++k) {
        superior->Row = k;
        if (superior->Text().isEmpty()) continue;
        if (k >= static_cast<int>(t.nombres.size()))
            throw ErrorEjecucion(QStringLiteral("Subíndice fuera del intervalo"));
        t.nombres[k] = superior->Text().toUpper();
    }
    t.n = superior->MaxRows();
    return t;
}

namespace {

bool Habilidades() {
    return estado().Tipo_Analisis == QLatin1String("HABILIDAD");
}

// Column 0 of each row, upper-cased, in column 1 of the sheet from row 1 + `desplazamiento`.
void Nombres_Filas(Hoja& hoja, Grilla& g, int desplazamiento) {
    g.Col = 0;
    for (int i = 1; i <= g.MaxRows(); ++i) {
        g.Row = i;
        if (!Marcada(g.Text())) hoja.Cells(i + desplazamiento, 1).Value(g.Text().toUpper());
    }
}

// Every data cell of the grid at (i + filas, j + columnas), by the "Spr_" rule.
void Copia_Datos(Hoja& hoja, Grilla& g, int filas, int columnas) {
    for (int i = 1; i <= g.MaxRows(); ++i)
        for (int j = 1; j <= g.MaxCols(); ++j) {
            g.Row = i;
            g.Col = j;
            if (!Marcada(g.Text())) hoja.Cells(i + filas, j + columnas).Value(g.Text());
        }
}

void Etiquetas(Hoja& hoja, int desde, const QStringList& textos) {
    for (int c = 0; c < textos.size(); ++c) hoja.Cells(2, desde + c).Value(textos[c]);
}

const QStringList kLogros = {QStringLiteral("BUENAS"), QStringLiteral("MALAS"),
                             QStringLiteral("OMITIDAS"), QStringLiteral("RENDIMIENTO"),
                             QStringLiteral("LOGRO")};

// Group k of kind 6: titles stand one column left of their labels from group 2 on, and group
// 19 is one column short; both as the report has always been.
void Grupo_Tipo_6(Hoja& hoja, int k, const NombresEjes& t) {
    if (k > 20) {
        hoja.Range(QStringLiteral("DR1:DV1")).Value(t.nombres[25]);
        return;
    }
    if (k == 1) {
        Titulo(hoja.Range(QStringLiteral("B1:F1")), t.nombres[1]);
        Etiquetas(hoja, 2, QStringList{QStringLiteral("FORMA")} + kLogros);
        return;
    }
    const Area area = k == 19 ? Area{1, 93, 1, 96} : Area{1, 5 * k - 3, 1, 5 * k + 1};
    Titulo(Rango(hoja, area), t.nombres[k]);
    Etiquetas(hoja, 5 * k - 2, kLogros);
}

}  // namespace

void Planilla_Tipo_5(Hoja& hoja, Grilla& g, const FuentesExportacion& f) {
    for (int c = 1; c <= 8; ++c) Celda_Encabezado(hoja, 1, c);
    const int filas = f.SprSuperior ? f.SprSuperior->MaxRows() : g.MaxRows();
    for (int r = 1; r <= filas + 1; ++r) Celda_Encabezado(hoja, r, 1);
    const char* titulos[] = {"CANTIDAD", "% BUENAS",   "CANTIDAD",   "% MALAS",
                             "CANTIDAD", "% OMITIDAS", "RENDIMIENTO"};
    for (int c = 0; c < 7; ++c) Titulo(hoja.Cells(1, c + 2), QString::fromLatin1(titulos[c]));
    Nombres_Filas(hoja, g, 1);
    hoja.Name = QStringLiteral("Analisis Ejes Tematicos");
    Copia_Datos(hoja, g, 1, 1);
    Pega_Grafico(hoja, f.grafico, 50, 450);
}

void Planilla_Tipo_6(Hoja& hoja, Grilla& g, const FuentesExportacion& f) {
    const NombresEjes t = Lee_Nombres(f.SprSuperior);
    for (int k = 1; k <= t.n; ++k) Grupo_Tipo_6(hoja, k, t);
    Nombres_Filas(hoja, g, 2);
    hoja.Name = Habilidades() ? QStringLiteral("Analisis Habilidades")
                              : QStringLiteral("Analisis Ejes Tematicos");
    hoja.Range(QStringLiteral("A:A")).ColumnWidth(45);
    Copia_Datos(hoja, g, 2, 1);
    for (int c = 1; c <= g.MaxCols() + 1; ++c) Celda_Encabezado(hoja, 1, c);
    for (int r = 1; r <= g.MaxRows() + 2; ++r) Celda_Encabezado(hoja, r, 1);
}

void Planilla_Tipo_7(Hoja& hoja, Grilla& g, const FuentesExportacion& f) {
    Lee_Nombres(f.SprSuperior);
    const std::pair<const char*, const char*> textos[] = {{"B1:J1", "LOGROS DEL CURSO"},
                                                          {"C2:J2", "PROMEDIO DE ASERTIVIDAD"},
                                                          {"C3:D3", "NIVEL BAJO"},
                                                          {"E3:F3", "NIVEL MEDIO BAJO"},
                                                          {"G3:H3", "NIVEL MEDIO ALTO"},
                                                          {"I3:J3", "NIVEL ALTO"},
                                                          {"A4", "CURSO"},
                                                          {"B4", "EJE TEMATICO"},
                                                          {"C4", "N°"},
                                                          {"E4", "N°"},
                                                          {"G4", "N°"},
                                                          {"I4", "N°"},
                                                          {"D4", "%"},
                                                          {"F4", "%"},
                                                          {"H4", "%"},
                                                          {"J4", "%"}};
    for (const auto& [rango, texto] : textos)
        Titulo(hoja.Range(QString::fromLatin1(rango)), QString::fromUtf8(texto));
    hoja.Range(QStringLiteral("A4")).ColumnWidth(21);
    hoja.Range(QStringLiteral("B4")).ColumnWidth(45);
    Titulo(hoja.Range(QStringLiteral("A5")), estado().Curso_Actual);
    for (int i = 1; i <= g.MaxRows() - 1; ++i)
        for (int j = 1; j <= g.MaxCols(); ++j) {
            g.Row = i;
            g.Col = j;
            if (Marcada(g.Text())) continue;
            const bool por_ciento = j == 3 || j == 5 || j == 7 || j == 9;
            hoja.Cells(i + 4, j + 1)
                .Value(g.Text() + (por_ciento ? QStringLiteral("%") : QString()));
        }
    for (int r = 1; r <= 4; ++r)
        for (int c = 1; c <= g.MaxCols() + 1; ++c) Celda_Encabezado(hoja, r, c);
}

// The grid's first two rows stay out, and its column j lands in sheet column j.
void Planilla_Tipo_8(Hoja& hoja, Grilla& g) {
    Titulo(hoja.Range(QStringLiteral("B1:D1")), QStringLiteral(" RESPUESTAS "));
    const char* textos[] = {" BUENAS",  " MALAS ",       " OMITIDAS ",
                            " PUNTOS ", " RENDIMIENTO ", " CALIFICACION "};
    for (int c = 0; c < 6; ++c) Titulo(hoja.Cells(2, c + 2), QString::fromLatin1(textos[c]));
    hoja.Range(QStringLiteral("A2")).Value(estado().Curso_Actual).ColumnWidth(50);
    hoja.Range(QStringLiteral("B4:G4")).ColumnWidth(15);
    for (int i = 3; i <= g.MaxRows(); ++i)
        for (int j = 1; j <= g.MaxCols(); ++j) {
            g.Row = i;
            g.Col = j;
            if (!Marcada(g.Text())) hoja.Cells(i, j).Value(g.Text());
        }
}

void Planilla_Tipo_9(Hoja& hoja, Grilla& g, const FuentesExportacion& f) {
    const NombresEjes t = Lee_Nombres(f.SprSuperior);
    for (int k = 1; k <= t.n; ++k) {
        if (k > 12) {
            hoja.Range(QStringLiteral("DR1:DV1")).Value(t.nombres[25]);
            continue;
        }
        Titulo(Rango(hoja, {1, 5 * k - 2, 1, 5 * k + 2}), t.nombres[k]);
        Etiquetas(hoja, 5 * k - 2, kLogros);
    }
    hoja.Range(QStringLiteral("A1")).Font_size(14).Font_Bold(true).Value(estado().Curso_Actual);
    hoja.Range(QStringLiteral("A1")).ColumnWidth(50);
    Nombres_Filas(hoja, g, 2);
    hoja.Name = Habilidades() ? QStringLiteral("Analisis Habilidades SEP")
                              : QStringLiteral("Analisis Ejes Tematicos SEP");
    Copia_Datos(hoja, g, 2, 0);
    Pega_Grafico(hoja, f.grafico, 200, 750);
    for (int c = 1; c <= g.MaxCols() + 1; ++c) Celda_Encabezado(hoja, 1, c);
}

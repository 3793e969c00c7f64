// The workbook layer: range addresses, merges, and what the written file holds.
#include "platform/planilla.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "platform/error_ejecucion.h"
#include "platform/planilla_lectura.h"

namespace {

// One member of the .xlsx package as text; "" when missing.
QString Parte(const QString& archivo, const char* nombre) {
    int error = 0;
    zip_t* z = zip_open(archivo.toLocal8Bit().constData(), ZIP_RDONLY, &error);
    if (!z) return {};
    QByteArray datos;
    zip_stat_t st;
    if (zip_stat(z, nombre, 0, &st) == 0) {
        datos.resize(static_cast<qsizetype>(st.size));
        zip_file_t* f = zip_fopen(z, nombre, 0);
        zip_fread(f, datos.data(), st.size);
        zip_fclose(f);
    }
    zip_close(z);
    return QString::fromUtf8(datos);
}

TEST(Planilla, DireccionesDeRango) {
    Hoja h(QStringLiteral("Hoja1"));
    const struct {
        const char* direccion;
        Area area;
    } casos[] = {
        {"A1", {1, 1, 1, 1}},          {"A1:A1", {1, 1, 1, 1}},     {"b1:c1", {1, 2, 1, 3}},
        {"DR1:DV1", {1, 122, 1, 126}}, {"CO1:CR1", {1, 93, 1, 96}}, {"A:A", {1, 1, 1048576, 1}},
    };
    for (const auto& c : casos)
        EXPECT_EQ(h.Range(QString::fromLatin1(c.direccion)).area(), c.area) << c.direccion;
    for (const char* malo : {"1A", "A1:B", "A0", "B1:A1", ""})
        EXPECT_THROW(h.Range(QString::fromLatin1(malo)), ErrorEjecucion) << malo;
}

TEST(Planilla, UnirConservaLaPrimeraCeldaYElValorVaAElla) {
    Hoja h(QStringLiteral("Hoja1"));
    h.Range(QStringLiteral("B1:C1")).Value(QStringLiteral("x"));
    h.Range(QStringLiteral("B1:C1")).Merge();
    EXPECT_EQ(h.Valor(1, 2), "x");
    EXPECT_EQ(h.Valor(1, 3), "");
    h.Range(QStringLiteral("B1:C1")).Value(QStringLiteral("BUENAS"));
    EXPECT_EQ(h.Valor(1, 3), "");
    // An unmerged range takes the value in every cell.
    h.Range(QStringLiteral("DR1:DV1")).Value(QStringLiteral("EJE"));
    EXPECT_EQ(h.Valor(1, 126), "EJE");
}

TEST(Planilla, ArchivoEscrito) {
    QTemporaryDir carpeta;
    const QString png = carpeta.filePath(QStringLiteral("g.png"));
    QImage(40, 20, QImage::Format_RGB32).save(png);
    Libro libro;
    Hoja& hoja = libro.Worksheets_Add();
    hoja.Name = QStringLiteral("Analisis Cualitativo Prueba");
    hoja.Cells(1, 1).Interior_ColorIndex(41).Font_size(12).Font_Bold(true).Font_ColorIndex(2);
    hoja.Range(QStringLiteral("b1:c1"))
        .Font_FontStyle(QStringLiteral("Arial"))
        .Merge()
        .Value(QStringLiteral("BUENAS"));
    hoja.Range(QStringLiteral("A1:A1")).Merge().Value(QStringLiteral("CURSO"));
    hoja.Cells(3, 1).Value(7);
    hoja.Cells(3, 2).Value(QStringLiteral("33.33 %"));
    hoja.Range(QStringLiteral("D:D")).ColumnWidth(50);
    hoja.AddPicture(png, false, true, 50, 250, 600, 300);
    const QString ruta = carpeta.filePath(QStringLiteral("r.xlsx"));
    libro.Close(true, ruta);

    const PlanillaLectura l = PlanillaLectura::Abre(ruta);
    EXPECT_EQ(l.Celda(1, "A"), "CURSO");  // a merged single cell
    EXPECT_EQ(l.Celda(1, "B"), "BUENAS");
    EXPECT_EQ(l.Celda(3, "A"), "7");
    EXPECT_EQ(l.Celda(3, "B"), "0.3333") << "a percentage is stored as its fraction";
    const QString libro_xml = Parte(ruta, "xl/workbook.xml");
    // The added sheet stands before the workbook's own "Hoja1".
    EXPECT_LT(libro_xml.indexOf("Analisis Cualitativo Prueba"), libro_xml.indexOf("Hoja1"));
    const QString hoja_xml = Parte(ruta, "xl/worksheets/sheet1.xml");
    EXPECT_TRUE(hoja_xml.contains(R"(<mergeCell ref="B1:C1"/>)")) << hoja_xml.toStdString();
    EXPECT_TRUE(hoja_xml.contains(R"(width="50.7109375")")) << hoja_xml.toStdString();
    const QString estilos = Parte(ruta, "xl/styles.xml");
    EXPECT_TRUE(estilos.contains("FF3366FF"));
    EXPECT_TRUE(estilos.contains("FFFFFFFF"));
    EXPECT_TRUE(estilos.contains(R"(formatCode="0.00%")")) << estilos.toStdString();
    // "Arial" as a font style names no font.
    EXPECT_FALSE(estilos.contains("Arial"));
    EXPECT_FALSE(Parte(ruta, "xl/media/image1.png").isEmpty());
}

// A text put in a cell is read as the spreadsheet reads a typed value: what reads as a number
// is a number a teacher can sum and sort, a percentage under its own format.
TEST(Planilla, UnTextoQueEsNumeroEntraComoNumero) {
    const struct {
        const char* texto;
        bool numero;
        double cifra;
        const char* formato;
    } casos[] = {
        {"13", true, 13, ""},
        {"4.5", true, 4.5, ""},
        {"-2", true, -2, ""},
        {" 7 ", true, 7, ""},
        {"16.67%", true, 0.1667, "0.00%"},
        {"50 %", true, 0.5, "0%"},
        {"0%", true, 0, "0%"},
        {"12.5 %", true, 0.125, "0.0%"},
        {"1.00 - 1.50", false, 0, ""},
        {"12345678-5", false, 0, ""},
        {"4,5", false, 0, ""},
        {"", false, 0, ""},
        {"AVANZADO", false, 0, ""},
        {"%", false, 0, ""},
    };
    Hoja h(QStringLiteral("Hoja1"));
    for (const auto& c : casos) {
        h.Cells(1, 1).Value(QString::fromUtf8(c.texto));
        const CeldaHoja* celda = h.Celda(1, 1);
        EXPECT_EQ(celda->numero, c.numero) << c.texto;
        EXPECT_DOUBLE_EQ(celda->cifra, c.cifra) << c.texto;
        EXPECT_EQ(celda->formato, c.formato) << c.texto;
        EXPECT_EQ(celda->valor, c.texto) << "the text as it was put";
    }
    QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(QStringLiteral("n.xlsx"));
    Libro libro;
    libro.Sheets(1).Cells(1, 1).Value(QStringLiteral("13"));
    libro.Sheets(1).Cells(1, 2).Value(QStringLiteral("AVANZADO"));
    libro.Close(true, ruta);
    const QString hoja_xml = Parte(ruta, "xl/worksheets/sheet1.xml");
    // A number cell has no type attribute; a text cell is a shared string.
    EXPECT_TRUE(hoja_xml.contains(QRegularExpression(R"(<c r="A1"( s="\d+")?><v>13</v>)")))
        << hoja_xml.toStdString();
    EXPECT_TRUE(hoja_xml.contains(QRegularExpression(R"(<c r="B1"( s="\d+")? t="s">)")))
        << hoja_xml.toStdString();
}

TEST(Planilla, SinGuardarNoEscribeYUnaCarpetaInexistenteEsError) {
    QTemporaryDir carpeta;
    Libro libro;
    libro.Close(false, carpeta.filePath(QStringLiteral("no.xlsx")));
    EXPECT_FALSE(QFile::exists(carpeta.filePath(QStringLiteral("no.xlsx"))));
    EXPECT_THROW(libro.Close(true, carpeta.filePath(QStringLiteral("falta/r.xlsx"))),
                 ErrorEjecucion);
}

}  // namespace

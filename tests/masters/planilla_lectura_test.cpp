// The list reader on files written by a spreadsheet program: first sheet only, each cell as
// typed, in every format the loads accept.
#include "platform/planilla_lectura.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "apoyo_maestros.h"
#include "platform/error_ejecucion.h"

namespace {

QString Lista(const QString& nombre) {
    return QDir(QStringLiteral(ZORTA_DATOS_PRUEBA "/masters")).filePath(nombre);
}

struct Caso {
    int fila;
    const char* columna;
    const char* esperado;
};

// The same list saved in three formats by the spreadsheet program.
TEST(PlanillaLectura, CellsAsTypedInEveryFormat) {
    const std::vector<Caso> comunes = {
        {1, "A", "12345678-5,"},
        {2, "B", "O'HIGGINS RIQUELME BERNARDO"},
        {3, "A", "1230"},  // a rut typed as a number
        {1, "C", "1° MEDIO B"},
        {5, "D", "5.5"},
        {45, "A", "10000315-5"},
        {46, "A", ""},
        {1, "E", ""},
    };
    for (const char* archivo : {"alumnos_45.xlsx", "alumnos_45.xls", "alumnos_45.csv"}) {
        const PlanillaLectura hoja = PlanillaLectura::Abre(Lista(archivo));
        EXPECT_EQ(hoja.Filas(), 45) << archivo;
        for (const Caso& c : comunes)
            EXPECT_EQ(hoja.Celda(c.fila, c.columna), c.esperado)
                << archivo << " " << c.columna << c.fila;
    }
    EXPECT_EQ(PlanillaLectura::Abre(Lista("alumnos_45.xlsx")).Celda(4, "D"), "=1+1");
    // An old binary workbook keeps no formula text, and FreeXL gives no value for such a cell.
    EXPECT_EQ(PlanillaLectura::Abre(Lista("alumnos_45.xls")).Celda(4, "D"), "");
}

TEST(PlanillaLectura, ColumnLetters) {
    const std::vector<std::pair<const char*, int>> casos = {{"A", 1},   {"d", 4},   {"Z", 26},
                                                            {"AA", 27}, {"AZ", 52}, {"", 0}};
    for (const auto& [letras, numero] : casos)
        EXPECT_EQ(PlanillaLectura::Numero_Columna(letras), numero) << letras;
}

TEST(PlanillaLectura, NumbersWrittenAsTyped) {
    const std::vector<std::pair<double, const char*>> casos = {{12345678, "12345678"},
                                                               {5.5, "5.5"},
                                                               {0.1, "0.1"},
                                                               {0.30000000000000004, "0.3"},
                                                               {-3, "-3"}};
    for (const auto& [valor, texto] : casos) EXPECT_EQ(Numero_Como_Tecleado(valor), texto);
}

TEST(PlanillaLectura, QuotedCsvFieldsAndSemicolons) {
    QTemporaryDir dir;
    QFile f(dir.filePath("lista.csv"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("\"1-9,\";\"PEREZ \"\"EL\"\" JUAN\";4B\r\n5126663-3;ANA;4A\r\n");
    f.close();
    const PlanillaLectura hoja = PlanillaLectura::Abre(f.fileName());
    EXPECT_EQ(hoja.Celda(1, "A"), "1-9,");
    EXPECT_EQ(hoja.Celda(1, "B"), "PEREZ \"EL\" JUAN");
    EXPECT_EQ(hoja.Celda(1, "C"), "4B");
    EXPECT_EQ(hoja.Celda(2, "A"), "5126663-3");
    EXPECT_EQ(hoja.Filas(), 2);
}

TEST(PlanillaLectura, MissingFileOrBrokenWorkbookIsAnError) {
    QTemporaryDir dir;
    EXPECT_THROW(PlanillaLectura::Abre(dir.filePath("no_existe.xlsx")), ErrorEjecucion);
    QFile f(dir.filePath("roto.xlsx"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("PK\x03\x04 no es un zip");
    f.close();
    EXPECT_THROW(PlanillaLectura::Abre(f.fileName()), ErrorEjecucion);
}

// A workbook the spreadsheet program would refuse gives nothing, and the message names the file.
TEST(PlanillaLectura, DamagedWorkbooksGiveNothing) {
    QTemporaryDir dir;
    QByteArray filas;
    for (int i = 1; i <= 45; ++i)
        filas += QStringLiteral("<row r=\"%1\"><c r=\"A%1\" t=\"s\"><v>%2</v></c></row>")
                     .arg(i)
                     .arg(i - 1)
                     .toUtf8();
    QByteArray textos = "<sst xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">";
    for (int i = 0; i < 45; ++i)
        textos += "<si><t>" + QByteArray::number(10000000 + i) + "</t></si>";
    const QByteArray sst_fin = "</sst>";
    const QByteArray una = "<row r=\"1\"><c r=\"A1\" t=\"s\"><v>0</v></c></row>";
    const auto sst = [](const QByteArray& si) {
        return "<sst xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><si><t>" +
               si + "</t></si></sst>";
    };
    struct Caso {
        const char* nombre;
        QByteArray celdas, compartidos;
        QString motivo;
    };
    const std::vector<Caso> casos = {
        {"textos compartidos cortados", filas, textos.left(textos.size() / 2), "está cortada"},
        {"un NUL en un texto", una, sst(QByteArray("AB\0C", 4)), "está dañada"},
        {"UTF-8 inválido", una, sst("\xC3\x28"), "está dañada"},
        {"una DTD", una, "<!DOCTYPE sst [<!ENTITY e \"x\">]>" + sst("&e;"), "trae una DTD"},
        {"sin textos compartidos", una, QByteArray(), "falta la parte"},
        {"índice de texto que no existe", "<row r=\"1\"><c r=\"A1\" t=\"s\"><v>45</v></c></row>",
         textos + sst_fin, "\"45\", que no existe"},
        {"columna desbordada",
         "<row r=\"1\"><c r=\"ZZZZZZZ1\"><v>1</v></c></row>",
         {},
         "\"ZZZZZZZ1\" está fuera"},
        {"fila desbordada",
         "<row r=\"2147483647\"><c r=\"A2147483647\"><v>1</v></c></row>",
         {},
         "\"2147483647\" está fuera"},
        {"texto de más de 32767 caracteres", una, sst(QByteArray(40000, 'a')), "más de 32767"},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        const QString ruta = dir.filePath("lista.xlsx");
        Escribe_Xlsx(ruta, caso.celdas, caso.compartidos);
        try {
            const PlanillaLectura hoja = PlanillaLectura::Abre(ruta);
            ADD_FAILURE() << "read " << hoja.Filas() << " rows";
        } catch (const ErrorEjecucion& e) {
            EXPECT_TRUE(e.texto().startsWith("No se pudo leer la planilla " + ruta +
                                             ": el libro está dañado ("))
                << e.texto().toStdString();
            EXPECT_TRUE(e.texto().endsWith("). No se cargó nada de él."))
                << e.texto().toStdString();
            EXPECT_LT(e.texto().size(), 300);
            EXPECT_TRUE(e.texto().contains(caso.motivo)) << e.texto().toStdString();
        }
    }
    // The same list whole is read.
    Escribe_Xlsx(dir.filePath("buena.xlsx"), filas, textos + sst_fin);
    EXPECT_EQ(PlanillaLectura::Abre(dir.filePath("buena.xlsx")).Celda(45, "A"), "10000044");
}

// Reading ends at the last row a list can hold: what lies past it is never read.
TEST(PlanillaLectura, ReadingStopsAtTheRowLimit) {
    QTemporaryDir dir;
    QByteArray filas;
    for (int i = 1; i <= 10001; ++i)
        filas += "<row r=\"" + QByteArray::number(i) + "\"><c><v>" + QByteArray::number(i) +
                 "</v></c></row>";
    filas += "<row r=\"10002\"><c r=\"ZZZZZZZ1\"><v>1</v></c></row>";
    Escribe_Xlsx(dir.filePath("larga.xlsx"), filas);
    const PlanillaLectura hoja = PlanillaLectura::Abre(dir.filePath("larga.xlsx"));
    EXPECT_EQ(hoja.Filas(), 10000);
    EXPECT_EQ(hoja.Celda(10000, "A"), "10000");
    EXPECT_EQ(PlanillaLectura::Abre(dir.filePath("larga.xlsx"), 100).Filas(), 100);
}

}  // namespace

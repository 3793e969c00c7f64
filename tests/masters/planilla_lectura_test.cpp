// The list reader on files written by a spreadsheet program: first sheet only, each cell as
// typed, in every format the loads accept.
#include "platform/planilla_lectura.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

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

}  // namespace

// Every kind of export opened by a real spreadsheet program: LibreOffice Calc converts each
// workbook to CSV, and every cell must come back with its text, numbers as numbers.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include "analysis/analisis_curso.h"
#include "analysis/analisis_pregunta.h"
#include "analysis/exporta_planilla.h"
#include "analysis/tablas_ejes.h"
#include "app/estado.h"
#include "grading/evaluacion_correccion.h"
#include "grading/tablas_ensayo.h"
#include "platform/planilla.h"
#include "store/copias_prueba.h"
#include "support/base_temporal.h"
#include "support/prueba_informes.h"

namespace {

// One CSV field: its text and whether it was quoted. Calc quotes the text cells only, and writes
// numbers as their format shows them.
struct Campo {
    QString texto;
    bool texto_celda = false;
};

std::vector<std::vector<Campo>> Lee_Csv(const QString& ruta) {
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) return {};
    const QString t = QString::fromUtf8(f.readAll());
    std::vector<std::vector<Campo>> filas(1);
    Campo campo;
    bool dentro = false;
    for (qsizetype i = 0; i < t.size(); ++i) {
        const QChar c = t[i];
        if (dentro) {
            if (c == '"' && i + 1 < t.size() && t[i + 1] == '"') {
                campo.texto += c;
                ++i;
            } else if (c == '"') {
                dentro = false;
            } else {
                campo.texto += c;
            }
        } else if (c == '"') {
            dentro = campo.texto_celda = true;
        } else if (c == ',' || c == '\n') {
            filas.back().push_back(campo);
            campo = {};
            if (c == '\n') filas.emplace_back();
        } else if (c != '\r') {
            campo.texto += c;
        }
    }
    return filas;
}

// A number as the CSV shows it: "13", "4.8", "3.45%" (a percentage is its fraction).
double Cifra(const QString& texto) {
    return texto.endsWith('%') ? texto.chopped(1).toDouble() / 100 : texto.toDouble();
}

class LibreOffice : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        soffice = QStandardPaths::findExecutable("soffice");
        if (soffice.isEmpty())
            GTEST_SKIP() << "LibreOffice Calc no está instalado (paquete libreoffice-calc-nogui): "
                            "no se pueden abrir las planillas con un programa real";
        Crea_Prueba_Informes(1, QStringLiteral("3° Medio A"), 30);
        ASSERT_TRUE(Fija_Prueba_Actual(1));
    }
    // Writes the sheet and keeps it to compare with what LibreOffice reads.
    void Guarda(const QString& nombre, const std::function<void(Hoja&)>& arma) {
        Libro libro;
        Hoja& hoja = libro.Worksheets_Add();
        arma(hoja);
        libro.Close(true, Ruta(nombre + ".xlsx"));
        hojas.emplace(nombre, std::make_unique<Hoja>(hoja));
    }
    QString soffice;
    std::map<QString, std::unique_ptr<Hoja>> hojas;
};

TEST_F(LibreOffice, CadaPlanillaSeAbreConSusCeldas) {
    TablasCurso curso;
    curso.Carga_Curso();
    Guarda("tipo2", [&](Hoja& h) {
        Arma_Planilla(h, curso.SprResulprucargada, curso.SprResulprucargada, 2,
                      {&curso.MSChart1, nullptr});
    });
    TablasPregunta pregunta;
    pregunta.Calcula_Forma(1);
    Guarda("tipo1", [&](Hoja& h) {
        Arma_Planilla(h, pregunta.SprAciertos, pregunta.SprFrecuencia, 1,
                      {&pregunta.MSChart1, nullptr});
    });
    TablasPsu psu;
    psu.Carga_Psu();
    Guarda("tipo3", [&](Hoja& h) { Arma_Planilla(h, psu.SprPSU, psu.SprPSU, 3, {&psu.MSChart1}); });
    TablasSimce simce;
    simce.Carga_Simce();
    Guarda("tipo4",
           [&](Hoja& h) { Arma_Planilla(h, simce.SprPSU, simce.SprPSU, 4, {&simce.MSChart1}); });
    estado().Tipo_Analisis = "EJE TEMATICO";
    TablasEjes ejes;
    ASSERT_TRUE(ejes.Carga_Ejes("1"));
    Grilla* grillas[] = {&ejes.SprSuperior, &ejes.SprPantalla, &ejes.SprSep, &ejes.SprSoloSep,
                         &ejes.SprSoloSep};
    for (int16_t tipo = 5; tipo <= 9; ++tipo)
        Guarda(QStringLiteral("tipo%1").arg(tipo), [&](Hoja& h) {
            Arma_Planilla(h, *grillas[tipo - 5], *grillas[tipo - 5], tipo, ejes.Fuentes_Propias());
        });
    Grilla alumnos(1, 11), copia(0, 11);
    Cabezas_Evaluacion(alumnos);
    Cabezas_Evaluacion(copia);
    Carga_Alumnos_Pantalla(alumnos);
    Guarda("correccion", [&](Hoja& h) { Arma_Planilla_Correccion(h, alumnos, copia, "60", "95"); });

    QStringList archivos;
    for (const auto& [nombre, hoja] : hojas) archivos << Ruta(nombre + ".xlsx");
    QProcess p;
    p.start(soffice, QStringList{"-env:UserInstallation=file://" + Ruta("perfil"), "--headless",
                                 "--convert-to",
                                 "csv:Text - txt - csv (StarCalc):44,34,76,1,,0,true,true,false",
                                 "--outdir", Ruta("csv")} +
                         archivos);
    ASSERT_TRUE(p.waitForFinished(300000));
    ASSERT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();

    for (const auto& [nombre, hoja] : hojas) {
        const auto csv = Lee_Csv(QDir(Ruta("csv")).filePath(nombre + ".csv"));
        ASSERT_FALSE(csv.empty()) << nombre.toStdString();
        auto campo = [&](int f, int c) {
            return f <= int(csv.size()) && c <= int(csv[f - 1].size()) ? csv[f - 1][c - 1]
                                                                       : Campo{};
        };
        int numeros = 0;
        for (const auto& [pos, celda] : hoja->Celdas()) {
            const Campo leido = campo(pos.first, pos.second);
            const std::string donde = nombre.toStdString() + " " + std::to_string(pos.first) + "," +
                                      std::to_string(pos.second) + " " + celda.valor.toStdString();
            if (celda.numero) {
                ++numeros;
                EXPECT_FALSE(leido.texto_celda) << donde;
                EXPECT_NEAR(Cifra(leido.texto), celda.cifra, 1e-9) << donde;
            } else if (!celda.valor.isEmpty()) {
                EXPECT_TRUE(leido.texto_celda) << donde;
                EXPECT_EQ(leido.texto, celda.valor) << donde;
            }
        }
        EXPECT_GT(numeros, 0) << nombre.toStdString();
    }
}

}  // namespace

// `zorta leer`: golden JSON lines of generated sheets (rewritten only with
// ZORTA_REGENERA_ORO=1), and bad files that give an error in the line and exit status 2.
#include "cli/leer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "apoyo_hojas.h"

namespace {

const QString kOro = QStringLiteral(ZORTA_DATOS_PRUEBA "/reading/leer_esperado.jsonl");

struct Hoja {
    const char* nombre;
    DisenoHoja diseno;
    int preguntas;
};

std::vector<Hoja> Hojas() {
    DisenoHoja girada =
        Hoja_Llena(877, false, Letras_Variadas(100, 5), 3, QStringLiteral("98765432K"));
    girada.rotacion = 1.1;
    girada.ruido = 25;
    DisenoHoja tenue = Hoja_Llena(864, false, "ABCDE", 0, QStringLiteral("123"));
    tenue.respuestas.push_back({1, 2, 150, 7.5});  // faint but dark at 180: a second mark
    tenue.respuestas.push_back({2, 3, 200, 7.5});  // too faint to count
    tenue.respuestas.push_back({3, 4, 30, 3.5});   // a small partial fill
    DisenoHoja solo_primera = Hoja_Llena(870, false, "A");
    solo_primera.filas_marcas = 1;
    return {
        {"normal_852.bmp", Hoja_Llena(852, false, Letras_Variadas(100, 1)), 100},
        {"girada_877.bmp", girada, 100},
        {"tenues_864.bmp", tenue, 60},
        {"grandes_873.bmp", Hoja_Llena(873, true, Letras_Variadas(36, 2), 4), 36},
        {"distancia_899.bmp", Hoja_Llena(899, false, "A"), 100},
        {"solo_primera_fila.bmp", solo_primera, 100},
    };
}

}  // namespace

TEST(ZortaLeer, LineasDeOro) {
    QTemporaryDir dir;
    QStringList lineas;
    for (const Hoja& h : Hojas()) {
        const QString ruta = dir.filePath(QString::fromUtf8(h.nombre));
        Dibuja_Hoja(h.diseno).Guarda_Bmp(ruta);
        bool abierto = false;
        lineas << Linea_Leer(ruta, {h.preguntas, 5, true}, abierto);
        EXPECT_TRUE(abierto);
    }
    const QString texto = lineas.join(QLatin1Char('\n')) + QLatin1Char('\n');
    QFile oro(kOro);
    if (qEnvironmentVariableIsSet("ZORTA_REGENERA_ORO")) {
        ASSERT_TRUE(oro.open(QIODevice::WriteOnly));
        oro.write(texto.toUtf8());
        return;
    }
    ASSERT_TRUE(oro.open(QIODevice::ReadOnly));
    EXPECT_EQ(texto, QString::fromUtf8(oro.readAll()));
}

TEST(ZortaLeer, ArchivosMalosNoDetienenLaLectura) {
    QTemporaryDir dir;
    const auto escribe = [&](const char* nombre, const QByteArray& datos) {
        QFile f(dir.filePath(QString::fromUtf8(nombre)));
        f.open(QIODevice::WriteOnly);
        f.write(datos);
        return f.fileName();
    };
    const QString buena = dir.filePath(QStringLiteral("buena.bmp"));
    Dibuja_Hoja(Hoja_Llena(860, false, "AB")).Guarda_Bmp(buena);
    QFile f(buena);
    f.open(QIODevice::ReadOnly);
    const QByteArray bmp = f.readAll();
    QByteArray enorme = bmp;
    enorme[19] = enorme[23] = '\x7f';  // 32000-odd by 32000-odd
    Imagen::Blanca(1, 1).Guarda_Bmp(dir.filePath(QStringLiteral("uno.bmp")));
    const QStringList archivos = {
        escribe("vacio.bmp", {}),
        escribe("truncado.bmp", bmp.left(5000)),
        escribe("falso.bmp", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)),
        dir.filePath(QStringLiteral("uno.bmp")),
        escribe("enorme.bmp", enorme),
        dir.filePath(QStringLiteral("falta.bmp")),
        buena,
    };
    QProcess zorta;
    zorta.start(
        QStringLiteral(ZORTA_EJECUTABLE),
        QStringList{QStringLiteral("leer"), QStringLiteral("--preguntas"), QStringLiteral("2")} +
            archivos);
    ASSERT_TRUE(zorta.waitForFinished(60000));
    EXPECT_EQ(zorta.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(zorta.exitCode(), 2);
    const QStringList lineas = QString::fromUtf8(zorta.readAllStandardOutput())
                                   .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lineas.size(), 7);
    const char* errores[] = {"El archivo está vacío",
                             "El mapa de bits está truncado",
                             "no es un mapa de bits BMP",
                             "La imagen de 1 x 1 píxeles es demasiado pequeña para ser una hoja",
                             "tamaño imposible",
                             "El archivo no existe"};
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        EXPECT_TRUE(lineas[i].contains(QString::fromUtf8(errores[i]))) << lineas[i].toStdString();
        EXPECT_TRUE(lineas[i].contains(QLatin1String("\"error\": \"")));
    }
    EXPECT_EQ(lineas[6],
              QStringLiteral(
                  "{\"archivo\": \"buena.bmp\", \"distancia\": 860, \"marcas_grandes\": false, "
                  "\"forma\": 2, \"rut\": \"12345678-5\", \"respuestas\": [\"A\",\"B\"], "
                  "\"fallo\": null}"));
}

// Only regular files are opened: a pipe named like a sheet gets its error line at once.
TEST(ZortaLeer, UnaTuberiaNoBloquea) {
    QTemporaryDir dir;
    const QString tuberia = dir.filePath(QStringLiteral("x.bmp"));
    ASSERT_EQ(mkfifo(QFile::encodeName(tuberia).constData(), 0600), 0);
    QProcess zorta;
    zorta.start(QStringLiteral(ZORTA_EJECUTABLE), {QStringLiteral("leer"), tuberia});
    const bool termino = zorta.waitForFinished(20000);
    if (!termino) zorta.kill(), zorta.waitForFinished();
    ASSERT_TRUE(termino);
    EXPECT_EQ(zorta.exitCode(), 2);
    EXPECT_TRUE(QString::fromUtf8(zorta.readAllStandardOutput())
                    .contains(QStringLiteral("No es un archivo común")));
}

// `zorta leer [--preguntas N] [--alternativas K] ARCHIVO...`: one JSON line a sheet, in the
// shape {"archivo", "distancia", "marcas_grandes", "forma", "rut", "respuestas", "fallo"}, with
// "error" added when the file could not be opened. The reader's boxes go to stderr.
#include "cli/leer.h"

#include <QFileInfo>
#include <QTextStream>

#include "platform/dialogos_consola.h"
#include "platform/error_ejecucion.h"

namespace {

const char* const kAyuda =
    "Uso: zorta leer [--preguntas N] [--alternativas K] ARCHIVO...\n"
    "Lee hojas de respuestas escaneadas (mapas de bits BMP) sin usar la base de datos y escribe\n"
    "una línea JSON por archivo: archivo, distancia, marcas_grandes, forma, rut, respuestas y\n"
    "fallo (null, \"A\" marca no encontrada, \"B\" distancia fuera de 850..898, \"C\" error al\n"
    "leer forma, rut o respuestas).\n\n"
    "  --preguntas N      preguntas de la prueba, 1 a 100 (por omisión 100)\n"
    "  --alternativas K   alternativas por pregunta, 1 a 5 (por omisión 5)\n"
    "  --help             muestra esta ayuda\n\n"
    "Estado de salida: 0 si se abrieron todos los archivos, 2 si alguno no se pudo abrir.\n";

QString Texto_Json(const QString& s) {
    QString r = QStringLiteral("\"");
    for (const QChar c : s) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            r += QLatin1Char('\\') + QString(c);
        else if (c.unicode() < 0x20)
            r += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            r += c;
    }
    return r + QLatin1Char('"');
}

QString Fallo_Json(Fallo f) {
    switch (f) {
        case Fallo::A:
            return QStringLiteral("\"A\"");
        case Fallo::B:
            return QStringLiteral("\"B\"");
        case Fallo::C:
            return QStringLiteral("\"C\"");
        default:
            return QStringLiteral("null");
    }
}

QString Json(const QString& archivo, const ResultadoHoja& r, const QString& error) {
    QStringList letras;
    for (const char c : r.respuestas) letras << Texto_Json(QString(QLatin1Char(c)));
    QString linea =
        QStringLiteral(
            "{\"archivo\": %1, \"distancia\": %2, \"marcas_grandes\": %3, \"forma\": %4, "
            "\"rut\": %5, \"respuestas\": [%6], \"fallo\": %7")
            .arg(Texto_Json(archivo))
            .arg(r.distancia)
            .arg(r.marcas_grandes ? QStringLiteral("true") : QStringLiteral("false"))
            .arg(r.forma ? QString::number(r.forma) : QStringLiteral("null"))
            .arg(r.rut_leido ? Texto_Json(r.rut) : QStringLiteral("null"))
            .arg(letras.join(QLatin1Char(',')))
            .arg(Fallo_Json(r.fallo));
    if (!error.isEmpty()) linea += QStringLiteral(", \"error\": ") + Texto_Json(error);
    return linea + QLatin1Char('}');
}

// Reads a whole number option in [minimo, maximo]; false on a bad value.
bool Opcion_Entera(const QStringList& args, int& i, int minimo, int maximo, int& valor) {
    bool ok = false;
    valor = args.value(++i).toInt(&ok);
    return ok && valor >= minimo && valor <= maximo;
}

}  // namespace

QString Linea_Leer(const QString& ruta, const OpcionesLectura& opciones, bool& abierto) {
    const QString archivo = QFileInfo(ruta).fileName();
    abierto = false;
    try {
        const Imagen imagen = Abre_Hoja(ruta);
        abierto = true;
        return Json(archivo, Lee_Hoja(imagen, opciones), {});
    } catch (const ErrorEjecucion& e) {
        return Json(archivo, ResultadoHoja{}, e.texto());
    }
}

int Cmd_Leer(const QStringList& args) {
    QTextStream salida(stdout), err(stderr);
    OpcionesLectura opciones;
    QStringList archivos;
    for (int i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (a == QLatin1String("--help") || a == QLatin1String("-h")) {
            salida << kAyuda;
            return 0;
        }
        bool ok = true;
        if (a == QLatin1String("--preguntas"))
            ok = Opcion_Entera(args, i, 1, 100, opciones.preguntas);
        else if (a == QLatin1String("--alternativas"))
            ok = Opcion_Entera(args, i, 1, 5, opciones.alternativas);
        else if (a.startsWith(QLatin1String("--")))
            ok = false;
        else
            archivos << a;
        if (!ok) {
            err << "zorta leer: opción o valor no válido: " << a << "\n" << kAyuda;
            return 2;
        }
    }
    if (archivos.isEmpty()) {
        err << "zorta leer: falta al menos un ARCHIVO\n" << kAyuda;
        return 2;
    }
    static QTextStream cajas(stderr);
    Instala_Dialogos(std::make_unique<DialogosConsola>(cajas));
    int estado_salida = 0;
    for (const QString& ruta : archivos) {
        bool abierto = false;
        salida << Linea_Leer(ruta, opciones, abierto) << "\n";
        salida.flush();
        if (!abierto) estado_salida = 2;
    }
    return estado_salida;
}

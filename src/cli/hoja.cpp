// `zorta hoja`: the sheet generator on the command line.
#include "cli/hoja.h"

#include <QTextStream>
#include <functional>
#include <map>

#include "platform/error_ejecucion.h"

namespace {

const char* const kAyuda =
    "Uso: zorta hoja -o ARCHIVO.bmp [OPCIONES]\n"
    "Dibuja una hoja de respuestas: en blanco para imprimir, o llena como si viniera del\n"
    "escáner, para pruebas y demostraciones.\n\n"
    "  -o, --salida ARCHIVO   mapa de bits a escribir (obligatorio)\n"
    "  --distancia D          píxeles entre la marca izquierda y la derecha (por omisión 852)\n"
    "  --grandes              hoja de marcas grandes (36 preguntas)\n"
    "  --rotacion G           grados de giro, positivo en el sentido del reloj\n"
    "  --dx PX, --dy PX       traslación de la hoja\n"
    "  --filas-marcas N       filas de marcas de registro impresas, 0 a 4 (por omisión 4)\n"
    "  --forma F              marca la forma F (1 a 4); puede repetirse\n"
    "  --rut TEXTO            un carácter por columna: dígito, K, o espacio sin marca\n"
    "  --rut-extra C:F        marca además la fila F (0 a 10) de la columna C (0 a 8)\n"
    "  --respuestas LISTA     letras por pregunta separadas por comas, desde la 1: \"A,,CE\"\n"
    "                         deja la 2 en blanco y marca C y E en la 3\n"
    "  --tenue P:A:O:R        marca la alternativa A (1 a 5) de la pregunta P con oscuridad O\n"
    "                         (0 negro a 255 blanco) y radio R\n"
    "  --oscuridad O          oscuridad de las respuestas (por omisión 30)\n"
    "  --radio R              radio de las respuestas en píxeles (por omisión 7.5)\n"
    "  --ruido N              ruido del fondo, hasta N niveles por canal\n"
    "  --manchas N            N manchas oscuras al azar\n"
    "  --semilla N            semilla del azar (por omisión 1)\n"
    "  --bits B               bits por píxel del archivo: 1, 4, 8, 24 o 32 (por omisión 24)\n"
    "  --help                 muestra esta ayuda\n";

using Opcion = std::function<bool(const QString& valor)>;

bool Numero(const QString& v, double& d) {
    bool ok = false;
    d = v.toDouble(&ok);
    return ok;
}
bool Entero(const QString& v, int& n, int minimo, int maximo) {
    bool ok = false;
    n = v.toInt(&ok);
    return ok && n >= minimo && n <= maximo;
}

bool Respuestas(const QString& v, DisenoHoja& d, int oscuridad, double radio) {
    const QStringList preguntas = v.split(QLatin1Char(','));
    for (int q = 0; q < preguntas.size(); ++q)
        for (const QChar c : preguntas[q]) {
            const int k = c.toUpper().unicode() - 'A' + 1;
            if (k < 1 || k > 5) return false;
            d.respuestas.push_back({q + 1, k, oscuridad, radio});
        }
    return true;
}

bool Tenue(const QString& v, DisenoHoja& d) {
    const QStringList p = v.split(QLatin1Char(':'));
    RellenoRespuesta r;
    if (p.size() != 4 || !Entero(p[0], r.pregunta, 1, 100) || !Entero(p[1], r.alternativa, 1, 5) ||
        !Entero(p[2], r.oscuridad, 0, 255) || !Numero(p[3], r.radio))
        return false;
    d.respuestas.push_back(r);
    return true;
}

bool Rut_Extra(const QString& v, DisenoHoja& d) {
    const QStringList p = v.split(QLatin1Char(':'));
    int c = 0, f = 0;
    if (p.size() != 2 || !Entero(p[0], c, 0, 8) || !Entero(p[1], f, 0, 10)) return false;
    d.rut_extra.emplace_back(c, f);
    return true;
}

}  // namespace

bool Lee_Opciones_Hoja(const QStringList& args, DisenoHoja& d, QString& salida, int& bits,
                       QString& error) {
    int oscuridad = 30, forma = 0;
    double radio = 7.5;
    QString respuestas;
    const std::map<QString, Opcion> opciones = {
        {QStringLiteral("--salida"), [&](const QString& v) { return salida = v, !v.isEmpty(); }},
        {QStringLiteral("-o"), [&](const QString& v) { return salida = v, !v.isEmpty(); }},
        {QStringLiteral("--distancia"),
         [&](const QString& v) { return Entero(v, d.distancia, 500, 1200); }},
        {QStringLiteral("--rotacion"), [&](const QString& v) { return Numero(v, d.rotacion); }},
        {QStringLiteral("--dx"), [&](const QString& v) { return Numero(v, d.dx); }},
        {QStringLiteral("--dy"), [&](const QString& v) { return Numero(v, d.dy); }},
        {QStringLiteral("--filas-marcas"),
         [&](const QString& v) { return Entero(v, d.filas_marcas, 0, 4); }},
        {QStringLiteral("--forma"),
         [&](const QString& v) {
             return Entero(v, forma, 1, 4) && (d.formas.push_back(forma), true);
         }},
        {QStringLiteral("--rut"), [&](const QString& v) { return d.rut = v, v.size() <= 9; }},
        {QStringLiteral("--rut-extra"), [&](const QString& v) { return Rut_Extra(v, d); }},
        {QStringLiteral("--respuestas"), [&](const QString& v) { return respuestas = v, true; }},
        {QStringLiteral("--tenue"), [&](const QString& v) { return Tenue(v, d); }},
        {QStringLiteral("--oscuridad"),
         [&](const QString& v) { return Entero(v, oscuridad, 0, 255); }},
        {QStringLiteral("--radio"),
         [&](const QString& v) { return Numero(v, radio) && radio > 0; }},
        {QStringLiteral("--ruido"), [&](const QString& v) { return Entero(v, d.ruido, 0, 120); }},
        {QStringLiteral("--manchas"),
         [&](const QString& v) { return Entero(v, d.manchas, 0, 100000); }},
        {QStringLiteral("--semilla"),
         [&](const QString& v) { return d.semilla = v.toUInt(), true; }},
        {QStringLiteral("--bits"),
         [&](const QString& v) {
             return Entero(v, bits, 1, 32) && QList<int>{1, 4, 8, 24, 32}.contains(bits);
         }},
    };
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--grandes")) {
            d.marcas_grandes = true;
            continue;
        }
        const auto it = opciones.find(args[i]);
        if (it == opciones.end() || i + 1 >= args.size() || !it->second(args[i + 1])) {
            error = QStringLiteral("opción o valor no válido: %1").arg(args[i]);
            return false;
        }
        ++i;
    }
    if (!Respuestas(respuestas, d, oscuridad, radio)) {
        error = QStringLiteral("respuestas no válidas: %1").arg(respuestas);
        return false;
    }
    if (salida.isEmpty()) error = QStringLiteral("falta el archivo de salida (-o)");
    return !salida.isEmpty();
}

int Cmd_Hoja(const QStringList& args) {
    QTextStream out(stdout), err(stderr);
    if (args.contains(QLatin1String("--help")) || args.contains(QLatin1String("-h"))) {
        out << kAyuda;
        return 0;
    }
    DisenoHoja diseno;
    QString salida, error;
    int bits = 24;
    if (!Lee_Opciones_Hoja(args, diseno, salida, bits, error)) {
        err << "zorta hoja: " << error << "\n" << kAyuda;
        return 2;
    }
    try {
        Dibuja_Hoja(diseno).Guarda_Bmp(salida, bits);
    } catch (const ErrorEjecucion& e) {
        err << "zorta hoja: " << e.texto() << "\n";
        return 1;
    }
    return 0;
}

// Fuzz harness of the list reader: any bytes written to a file with the extension of the build
// (ZORTA_EXTENSION: .xlsx, .xls or .csv) and read as a list of 10,000 rows.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/error_ejecucion.h"
#include "platform/planilla_lectura.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t tamano) {
    static QTemporaryDir carpeta;
    static const QString ruta = carpeta.filePath(QStringLiteral("lista" ZORTA_EXTENSION));
    QFile f(ruta);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 0;
    f.write(reinterpret_cast<const char*>(datos), static_cast<qint64>(tamano));
    f.close();
    try {
        const PlanillaLectura hoja = PlanillaLectura::Abre(ruta);
        for (int fila = 1; fila <= hoja.Filas(); ++fila)
            (void)hoja.Celda(fila, QStringLiteral("D"));
    } catch (const ErrorEjecucion&) {
    }
    return 0;
}

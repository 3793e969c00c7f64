// Fuzz harness of the sheet reader: any bytes as a bitmap; what opens as a sheet is read whole,
// as `zorta leer` reads it.
#include <QByteArray>
#include <QTextStream>

#include "platform/dialogos.h"
#include "platform/dialogos_consola.h"
#include "platform/error_ejecucion.h"
#include "reading/lectura_hoja.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t tamano) {
    static QString descartado;
    static QTextStream nulo(&descartado);
    static const bool listo = [] {
        Instala_Dialogos(std::make_unique<DialogosConsola>(nulo));
        return true;
    }();
    (void)listo;
    descartado.clear();
    try {
        const Imagen imagen = Imagen::Desde_Bytes(
            QByteArray(reinterpret_cast<const char*>(datos), static_cast<qsizetype>(tamano)));
        // A sheet-sized image is read as one; a huge one (a few bytes of RLE can say so) only
        // decoded, so that each try stays short.
        if (imagen.ancho() >= 100 && imagen.alto() >= 100 &&
            int64_t(imagen.ancho()) * imagen.alto() <= 4'000'000)
            Lee_Hoja(imagen, {100, 5, true});
    } catch (const ErrorEjecucion&) {
    }
    return 0;
}

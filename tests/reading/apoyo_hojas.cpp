// Helpers of the reading tests.
#include "apoyo_hojas.h"

DisenoHoja Hoja_Llena(int distancia, bool grandes, const std::string& letras, int forma,
                      const QString& rut) {
    DisenoHoja d;
    d.distancia = distancia;
    d.marcas_grandes = grandes;
    if (forma) d.formas = {forma};
    d.rut = rut;
    for (size_t q = 0; q < letras.size(); ++q)
        if (letras[q] >= 'A' && letras[q] <= 'E')
            d.respuestas.push_back({static_cast<int>(q) + 1, letras[q] - 'A' + 1});
    return d;
}

std::string Letras_Variadas(int preguntas, int semilla) {
    static const char kCiclo[] = "ABCDEOEDCBA";
    std::string s;
    for (int q = 0; q < preguntas; ++q) s += kCiclo[(q * 7 + semilla) % 11];
    return s;
}

ResultadoHoja Dibuja_Y_Lee(const DisenoHoja& d, int preguntas, int alternativas) {
    const Imagen imagen = Dibuja_Hoja(d);
    return Lee_Hoja(imagen, {preguntas, alternativas, true});
}

std::string Texto(const std::vector<char>& respuestas) {
    return std::string(respuestas.begin(), respuestas.end());
}

// "Generación de Prueba General".
#pragma once

#include "setup/screens/generador_prueba.h"

class FrmGenePru : public GeneradorPrueba {
public:
    explicit FrmGenePru(QWidget* padre = nullptr) : GeneradorPrueba(TipoGenerador::General, padre) {}
};

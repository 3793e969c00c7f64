// "Generador de pruebas  PSU".
#pragma once

#include "setup/screens/generador_prueba.h"

class FrmGenePsuPru : public GeneradorPrueba {
public:
    explicit FrmGenePsuPru(QWidget* padre = nullptr) : GeneradorPrueba(TipoGenerador::PSU, padre) {}
};

// "Generador de pruebas SIMCE".
#pragma once

#include "setup/screens/generador_prueba.h"

class FrmGeneSimcePru : public GeneradorPrueba {
public:
    explicit FrmGeneSimcePru(QWidget* padre = nullptr) : GeneradorPrueba(TipoGenerador::SIMCE, padre) {}
};

// The test list "Resumen Pruebas Ingresadas.": the screen the program starts on.
#pragma once

#include <QWidget>

class frmCorrecPru : public QWidget {
    Q_OBJECT
public:
    explicit frmCorrecPru(QWidget* padre = nullptr);
};

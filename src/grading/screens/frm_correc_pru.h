// "Resumen Pruebas Ingresadas.": the list of all tests. Choosing one makes it the current test
// of every screen; its students show with their results, the ones that need attention marked.
#pragma once

#include <QWidget>

#include "grading/corrector.h"
#include "platform/grilla.h"

class QLabel;
class QPushButton;
class QTableView;

class frmCorrecPru : public QWidget {
    Q_OBJECT
public:
    explicit frmCorrecPru(QWidget* padre = nullptr);

    // One row a test, newest first: number, name, teacher, course, type, questions, subject,
    // date, forms, alternatives, key state.
    Grilla SprPrincipal{0, 11};
    // One row a student of the chosen test.
    Grilla SprResulprucargada{1, 10};

    void LLena_Grilla_Principal();
    void SprPrincipal_Click(int fila);
    void SprPrincipal_DblClick(int fila);
    void Carga_Detalle_Prueba(int16_t idprueba);
    void Trae_Notas_Alumno(const QString& rut);
    void SprResulprucargada_DblClick(int fila);
    // The delete button: removes the current test and all its rows.
    void Elimina_Prueba();
    // The copy button.
    void XPButton1_Click();

    QLabel* Etiqueta(const QString& nombre) const;
    // The row of SprPrincipal chosen last, 0 when none.
    int Fila_Seleccionada() const { return fila_principal_; }
    QPushButton* XPButton1 = nullptr;

private:
    void Construye();
    void Limpia_Etiquetas();
    void Agrega_Fila_Resultado();
    void Refresca_Vistas();

    Corrector corrector_;  // this screen's copy of the grade table and the zero-grade repair
    int fila_principal_ = 0;
    QTableView* vista_principal_ = nullptr;
    QTableView* vista_resultados_ = nullptr;
    QList<QLabel*> etiquetas_;
};

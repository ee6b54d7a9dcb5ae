// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/sheets/CodigoDeHoja.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>
#include <optional>

class QStandardItemModel;

namespace Ui {
class FormPracticasHojas;
}

/// The topic "Hojas": makes sheets of exercises and gives their codes; with a code the sheet is
/// done here, printed, or saved as PDF or HTML.
class FormPracticasHojas : public QWidget
{
    Q_OBJECT

public:
    explicit FormPracticasHojas(QWidget *padre);
    ~FormPracticasHojas() override;

    Tareas &tareas() { return m_tareas; }

Q_SIGNALS:
    /// The sheet is to be done; without a limit where `minutos` is 0.
    void hacer(const EncargoDeHoja &encargo, int minutos);

protected:
    void showEvent(QShowEvent *suceso) override;

private:
    void construye();
    void conectaControles();
    void cmbDe_Change();
    void txtCodigo_Change();
    void cmdCodigo_Click();
    void cmdHacer_Click();
    Tarea<> cmdImprimir_Click();
    Tarea<> cmdGuardarHoja_Click();
    QList<EncargoDeHoja::Parte> marcadas() const;

    std::unique_ptr<Ui::FormPracticasHojas> ui; ///< null until it is first seen
    QStandardItemModel *m_tipos = nullptr;
    std::optional<EncargoDeHoja> m_encargo; ///< of the code in its field
    TareasDeVentana m_tareas{this};
};

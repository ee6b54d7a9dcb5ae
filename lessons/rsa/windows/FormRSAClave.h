// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class CampoLargo;
class FormRSAAtaques;
class PanelDePasos;

namespace Ui {
class FormRSAClave;
}

/// The topic "Elección de clave": the numbers of the own key, the size that is demanded, the
/// mailbox folder and the publication of the key.
class FormRSAClave : public QWidget
{
    Q_OBJECT

public:
    /// `clave` is the student's own key.
    FormRSAClave(std::shared_ptr<ClsRSA> clave, QWidget *leccion);
    ~FormRSAClave() override;

    /// Fills the fields from the key.
    void muestraClave();
    /// Says that the primes are being tested, which takes long for long ones.
    void avisaDeEspera();
    /// Shows the verdict of a validation beneath the fields.
    void muestraVeredicto(bool bien, const QString &mensaje);
    /// Shows the mailbox folder, and whether the key can be published in it.
    void muestraBuzon(bool sePuedePublicar);

    PanelDePasos *pasos() const { return m_pasos; }

    Tareas &tareas() { return m_tareas; }

Q_SIGNALS:
    /// The key was validated: with a verdict, without one because a number is missing, or in vain
    /// because it could not be saved.
    void validada();

private:
    CampoLargo *txtQ(int i) const;
    enum class Estado { Neutro, Bien, Mal };
    void ponEstado(Estado estado, const QString &texto);
    void muestraEstado();
    void muestraObjecion();
    void muestraCalculados();
    void muestraEscrita();
    void muestraDerivados();
    bool muestraLaClave() const;
    void actualizaPasos();
    bool esLarga() const;
    Tarea<> valida();
    Tarea<> pruebaAparte(Billete billete);

    void txtQ_Validate(int i);
    void txtQ_Return(int i);
    void txtS_Validate();
    void txtS_Return();
    void txtR_Change();
    void ChkNumBits_Click();
    void TxtNumBits_Change();
    Tarea<> cmdBuzon_Click();
    void cmdPublicarClave_Click();

    std::unique_ptr<Ui::FormRSAClave> ui;
    std::shared_ptr<ClsRSA> m_clave;
    PanelDePasos *m_pasos;
    FormRSAAtaques *m_ataques;
    QStringList m_explicada; ///< the numbers of the key that the steps explain
    Estado m_estado = Estado::Neutro;
    QString m_textoDeEstado;
    bool m_publicada = false;  ///< what is shown is that the key was published
    bool m_rPendiente = false; ///< of what is in the field, the key knows nothing yet
    TareasDeVentana m_tareas{this};
};

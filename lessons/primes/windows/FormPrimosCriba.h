#pragma once

#include <QWidget>
#include <chrono>
#include <memory>
#include <vector>

class CribaSegmentada;
class FormLeccion;
class ModeloPrimos;
class QAbstractButton;
namespace Ui {
class FormPrimosCriba;
}

/// The topic "Criba de Eratóstenes": the primes up to a bound, by the sieve of the lesson or by
/// libbignum.
class FormPrimosCriba : public QWidget
{
    Q_OBJECT

public:
    explicit FormPrimosCriba(FormLeccion *leccion);
    ~FormPrimosCriba() override;

    /// The button that stops the sieve; null while none runs.
    QAbstractButton *botonDeParada() const;

    /// Writes a time into the label of the panel.
    void muestraTiempo(const QString &tiempo);

private:
    void BtnCriba_Click();
    void criba(std::int32_t limite);
    void ponEnMarcha();
    void ponEnReposo();
    void muestraTiempoTranscurrido();
    void muestraPrimos(std::vector<std::uint32_t> primos, qint64 cuantos, bool detenida);

    std::unique_ptr<Ui::FormPrimosCriba> ui;
    FormLeccion *m_leccion;
    ModeloPrimos *m_modelo;
    std::shared_ptr<CribaSegmentada> m_criba; ///< the last sieve, kept between runs
    std::chrono::steady_clock::time_point m_inicio;
};

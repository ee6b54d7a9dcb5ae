#pragma once

#include <QMdiArea>

/// The area of the child windows. While it is empty it says what to do.
class AreaLecciones : public QMdiArea
{
    Q_OBJECT

public:
    explicit AreaLecciones(QWidget *padre = nullptr);

protected:
    void paintEvent(QPaintEvent *suceso) override;
};

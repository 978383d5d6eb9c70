#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

/// What is shown while a map is being made: a picture that moves, how far it is, and a button that ends it.
class WaitSign final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int Frames = 4;

    explicit WaitSign(QPushButton *cmdCancel, QWidget *parent = nullptr);

    void showFrame(int frame); ///< of the moving picture, counted from 1
    void showProgress(int done, int all);

private:
    QLabel *imgAnimation = nullptr;
    QProgressBar *prgPages = nullptr;
};

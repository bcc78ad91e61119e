// What every window costs: 60 plain widgets of the kinds that a dialog is made of, and nothing else.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <array>

namespace {

constexpr int kRows = 10;

void fillRow(QGridLayout &grid, int row)
{
    auto *const menu = new QComboBox;
    menu->addItems({"One", "Two", "Three"});
    const std::array<QWidget *, 6> widgets{new QLabel("Label:"),     menu,
                                           new QCheckBox("Check"),   new QLineEdit("Text"),
                                           new QPushButton("Press"), new QSpinBox};
    for (std::size_t column = 0; column < widgets.size(); ++column)
        grid.addWidget(widgets.at(column), row, static_cast<int>(column));
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QDialog window;
    QGridLayout grid(&window);
    for (int row = 0; row < kRows; ++row)
        fillRow(grid, row);
    return window.exec();
}

// A custom editor: a slider for a percentage.
#include <MaltoConfiguration/MaltoConfiguration.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>

namespace {

class SliderEditor : public MtConf::ConfigItemWidget
{
public:
    SliderEditor(MtConf::ConfItem *item, QWidget *parent)
        : ConfigItemWidget(item, parent), mSlider(new QSlider(Qt::Horizontal, this)),
          mNumber(new QLabel(this))
    {
        mSlider->setRange(0, 100);
        auto *layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(mSlider, 1);
        layout->addWidget(mNumber);
        loadConf();
        connect(mSlider, &QSlider::valueChanged, this, &SliderEditor::store);
    }

    /// Shows the stored value.
    void loadConf() override
    {
        mSlider->setValue(readValue<int>());
        showNumber();
    }

private:
    void store(int percent)
    {
        showNumber();
        // False if the value is already stored, or if a change callback has deleted this editor.
        if (writeValue(percent))
            refreshLabelState();
    }
    void showNumber() { mNumber->setText(QString::number(mSlider->value()) + " %"); }

    QSlider *const mSlider;
    QLabel *const mNumber;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    int volume = 40;

    MtConf::MtConfManage settings;
    settings.addConfInt32(
        "Volume", &volume, "Sound", "Volume", {},
        [](MtConf::ConfItem *item, QWidget *parent) -> MtConf::ConfigItemWidget * {
            return new SliderEditor(item, parent);
        });
    settings.ShowWindow();
    return app.exec();
}

// A bundle of the tests' own: two panels, of which the first marks a choice when it goes. The bundle remembers how many
// reports the second one heard.
#include "PDEPlugInInterface.h"

#include <QObject>

namespace {

int reports = 0;

class Panel : public PDEPanel, private PDEPanelInspection
{
public:
    Panel(QString name, PDEPluginCallback_v100_ *lastWordsTo)
        : m_name(std::move(name))
        , m_lastWordsTo(lastWordsTo)
    {}
    ~Panel() override
    {
        if (m_lastWordsTo)
            m_lastWordsTo->willChangePPDOptionKeyValue("QnMedia", "ThermalCopy");
    }
    QString identifier() const override { return m_name; }
    QWidget *panelView() override { return nullptr; }
    QString panelName() override { return m_name; }
    QString panelKind() override { return {}; }
    std::optional<QStringList> supportedPPDOptionKeys() override { return std::nullopt; }
    void willShow() override {}
    bool shouldHide() override { return true; }
    bool saveValuesAndReturnError(QString *) override { return true; }
    bool restoreValuesAndReturnError(QString *) override { return true; }
    std::optional<PDESummary> summaryInfo() override { return std::nullopt; }
    bool shouldPrint() override { return true; }
    void printWindowWillClose(bool) override {}
    bool shouldShowHelp() override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &, const std::optional<QString> &) override
    {
        reports += m_lastWordsTo ? 0 : 1;
    }
    const PDEPanelInspection &inspection() const override { return *this; }

private:
    bool isInterfaceLoaded() const override { return false; }
    std::vector<Control> controls() const override { return {}; }
    std::vector<Selection> selections() const override { return {}; }
    std::optional<QString> paperName() const override { return std::nullopt; }

    QString m_name;
    PDEPluginCallback_v100_ *m_lastWordsTo;
};

class PlugIn : public PDEPlugIn
{
public:
    bool initWithBundle(const foundation::Bundle &) override { return true; }
    const PDEPanels *PDEPanelsForType(const QString &, PDEPluginCallback_v100_ &callback) override
    {
        m_panels.clear();
        m_panels.push_back(std::make_unique<Panel>("first", &callback));
        m_panels.push_back(std::make_unique<Panel>("second", nullptr));
        return &m_panels;
    }

private:
    PDEPanels m_panels;
};

} // namespace

class LastWordsEntry final : public QObject, public PDEPlugInEntry
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInEntry_iid)
    Q_INTERFACES(PDEPlugInEntry)

public:
    std::unique_ptr<PDEPlugIn> principalObject(const QString &) override { return std::make_unique<PlugIn>(); }
    std::vector<PDERemembered> remembered() const override { return {{"reports", QString::number(reports)}}; }
};

#include "LastWordsBundle.moc"

#pragma once

#include "widgets/HostedControl.h"

#include <memory>

namespace qd8 {

// The loyalty-point panel of a sales document: the customer's point balance and the
// approved point-usage document (QD8TPointTrans) the document spends, its points, value and
// persons. The clerk picks the point document (the select button, or its number and Enter);
// creating, opening, applying and transferring point documents are the host's, asked through
// the events. Reads the one database of ConnectionString.
class PointControl : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(double PointAvailable READ PointAvailable WRITE setPointAvailable)
    Q_PROPERTY(QString PointNo READ PointNo WRITE setPointNo)
    Q_PROPERTY(double PointUse READ PointUse WRITE setPointUse)
    Q_PROPERTY(double PointUseValue READ PointUseValue WRITE setPointUseValue)
    Q_PROPERTY(double PointUsePax READ PointUsePax WRITE setPointUsePax)
    Q_PROPERTY(double PointMaxUseValue READ PointMaxUseValue WRITE setPointMaxUseValue)
    Q_PROPERTY(QString CustomerCode READ CustomerCode WRITE setCustomerCode)
    Q_PROPERTY(QString MODE READ MODE WRITE setMODE)

public:
    // The transfer event always carries this document type, whatever the host's own.
    static constexpr int TransferDocumentType = 3;

    explicit PointControl(QWidget* parent = nullptr);
    ~PointControl() override;

    // The database, the user and the hosting document's group and type (the type selects
    // the point documents offered).
    Q_INVOKABLE void SetFirst(const QString& iConnectionString, qint32 UserID, const QString& DocumentGroup, int DocumentType);

    double PointAvailable() const;
    void setPointAvailable(double points);
    QString PointNo() const;
    void setPointNo(const QString& number);
    double PointUse() const;
    void setPointUse(double points);
    double PointUseValue() const;
    void setPointUseValue(double value);
    double PointUsePax() const;
    void setPointUsePax(double pax);
    double PointMaxUseValue() const;
    void setPointMaxUseValue(double value);
    QString CustomerCode() const;
    void setCustomerCode(const QString& code);
    QString MODE() const;
    // "ADD" or "EDIT" let the clerk choose a point document; anything else only shows it.
    void setMODE(const QString& mode);
    QString documentGroup() const;
    int documentType() const;
    QString documentNo() const;

    // Sets the hosting document's number and loads the panel on a connection of its own:
    // a repair order ("RO") takes its point document from QD8TSO.TInvTJobNo.
    Q_INVOKABLE void FillData(const QString& DocNo);
    // Always "": the panel never blocks a save.
    Q_INVOKABLE QString isReadyToSave() const;
    // Raises DataChange.
    Q_INVOKABLE void ValidData(int Index = 0);
    // The select button: the customer's approved, unused point documents of the document
    // type; a chosen one is validated and announced.
    Q_INVOKABLE void selectPointDocument();
    // Enter in the point-document field: the points and persons of the document typed.
    // False (with a message) for an unknown number or one that cannot be looked up.
    Q_INVOKABLE bool validatePointNo();

Q_SIGNALS:
    void DataChange();
    void AddNew(QString CustomerCode);
    void OpenDocument(QString DocumentGroup, int DocumentType, QString DocumentNo, QString CustomerCode);
    void Apply(QString DocumentGroup, int DocumentType, QString DocumentNo, QString CustomerCode);
    void OpenDocumentTransfer(QString DocumentGroup, int DocumentType, QString DocumentNo, QString CustomerCode);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8

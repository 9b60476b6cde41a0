#pragma once

#include "foundation/PickRequest.h"
#include "widgets/HostedControl.h"

#include <memory>

namespace qd8 {

// Ties an inventory or production document to a job order line, a step of that line, or a
// production order line. Three pick lists (F2 or the "..." buttons) over the job views of
// the data database; a job number or job card typed or scanned into the job box and
// confirmed with Enter is found without opening a list, and so is a step code. The choice
// sits in the properties below; DataChange follows every change of it. The host asks
// isReadyToSave() before saving: "" when what the document code requires is chosen, else
// the message saying what is missing (levels in docs/host-guide.md, "Job selector").
class JobSelector : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString JobNo READ JobNo WRITE setJobNo)
    Q_PROPERTY(int JobLn READ JobLn WRITE setJobLn)
    Q_PROPERTY(QString JobCode READ JobCode WRITE setJobCode)
    Q_PROPERTY(QString ProjectCode READ ProjectCode WRITE setProjectCode)
    Q_PROPERTY(QString MPSNo READ MPSNo WRITE setMPSNo)
    Q_PROPERTY(int MPSLn READ MPSLn WRITE setMPSLn)
    Q_PROPERTY(QString ProductionNo READ ProductionNo WRITE setProductionNo)
    Q_PROPERTY(int ProductionLn READ ProductionLn WRITE setProductionLn)
    Q_PROPERTY(int StepLn READ StepLn WRITE setStepLn)
    Q_PROPERTY(QString ProcessCode READ ProcessCode WRITE setProcessCode)
    Q_PROPERTY(QString ProcessBook READ ProcessBook WRITE setProcessBook)
    Q_PROPERTY(QString SectionCode READ SectionCode WRITE setSectionCode)
    Q_PROPERTY(QString Section READ Section)
    Q_PROPERTY(QString Location READ Location)
    Q_PROPERTY(QString ProductCode READ ProductCode)
    Q_PROPERTY(QString MODE READ MODE WRITE setMODE)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(int RequireJOB READ RequireJOB WRITE setRequireJOB)
    Q_PROPERTY(int RequireMDS READ RequireMDS WRITE setRequireMDS)
    Q_PROPERTY(int RequirePD READ RequirePD WRITE setRequirePD)

public:
    explicit JobSelector(QWidget* parent = nullptr);
    ~JobSelector() override;

    // The choice. Setting a part does not clear the others and raises DataChange.
    QString JobNo() const;
    void setJobNo(const QString& value);
    int JobLn() const;
    void setJobLn(int value);
    QString JobCode() const;
    void setJobCode(const QString& value);
    QString ProjectCode() const;
    void setProjectCode(const QString& value);
    QString MPSNo() const;
    void setMPSNo(const QString& value);
    int MPSLn() const;
    void setMPSLn(int value);
    QString ProductionNo() const;
    void setProductionNo(const QString& value);
    int ProductionLn() const;
    void setProductionLn(int value);
    // The line of the chosen step within its job line (QD8TJobMethod.TJStLn), 0 for none.
    int StepLn() const;
    void setStepLn(int value);
    // The step (QD8TMRPStepName.TSepCode) and what it gives: its document code, section and
    // location; ProductCode is the step's or the production line's output product.
    QString ProcessCode() const;
    void setProcessCode(const QString& value);
    QString ProcessBook() const;
    void setProcessBook(const QString& value);
    QString SectionCode() const;
    void setSectionCode(const QString& value);
    QString Section() const;
    QString Location() const;
    QString ProductCode() const;
    // "JOB" shows the job and its step only, "PD" the production order only, anything
    // else both.
    QString MODE() const;
    void setMODE(const QString& value);

    // 0 nothing required. RequireJOB 1: a job order, 2: and its line. RequireMDS 1: a step
    // of the job line (so the job order and its line too). RequirePD 1: a production order,
    // 2: and its line.
    int RequireJOB() const;
    void setRequireJOB(int value);
    int RequireMDS() const;
    void setRequireMDS(int value);
    int RequirePD() const;
    void setRequirePD(int value);

    // The data database (jobs, the user's settings, the options) and the user.
    Q_INVOKABLE void SetFirst(const QString& iConnectionString);
    Q_INVOKABLE void SetFirst2(const QString& iConnectionString, qint32 UserID);
    using HostedControl::SetFirst;
    using HostedControl::SetPermission;
    Q_INVOKABLE void SetPermission(int iRequireJOB, int iRequireMDS, int iRequirePD);
    // The three levels of a document code (QD8TCode of the application database: the
    // AppConnectionString when the host gave one, else the ConnectionString). A code that is
    // not found requires nothing; a failing read is DbError.
    Q_INVOKABLE void SetPermissionByDocCode(const QString& DOCCODE);
    // The choice stored on an inventory document; DbError when it cannot be read.
    Q_INVOKABLE void FillData(const QString& InventDocNo);
    // Empties the choice.
    Q_INVOKABLE void Clear();

    // The first missing piece of one group ("" when complete): 1 the job order and its
    // line, 2 the step, 3 the production order and its line; 0 all three in that order.
    Q_INVOKABLE QString ValidData(int Index) const;
    Q_INVOKABLE QString isReadyToSave() const { return ValidData(0); }
    // The quality-check set of the choice: the production line's, else the job step's,
    // else the first one among the product's production steps; "" when none has one.
    // DbError when a read fails.
    Q_INVOKABLE QString GetQCSet() const;

    // The three pick lists as they are opened now (filter mode, project, job, job card and
    // the user's custom captions taken into account).
    PickRequest jobListRequest() const;
    PickRequest stepListRequest() const;
    PickRequest productionListRequest() const;
    // The condition that "ICJOBFilterMode" adds to the job list for `mode`.
    static QString jobTypeCondition(int mode);

    // Opens a list and takes the row picked; false when nothing was picked.
    bool pickJob();
    bool pickStep();
    bool pickProduction();
    // A job number or job card, a step code as typed or scanned: true when found and taken.
    // Several open lines of one job open the job list on that job card.
    bool enterJob(const QString& text);
    bool enterStep(const QString& code);

Q_SIGNALS:
    void DataChange();

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace qd8

// The pages of RULA and REBA.
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/job_state.h"
#include "expected_tables.h"
#include "tools/reba/reba_controls.h"
#include "tools/reba/reba_headline.h"
#include "tools/reba/reba_score.h"
#include "tools/rula/rula_controls.h"
#include "tools/rula/rula_headline.h"
#include "tools/rula/rula_score.h"

namespace halvane {
namespace {

const std::vector<std::string> kButtonHeadings{"Button", "Posture", "Score"};
const std::vector<std::string> kBoxHeadings{"Box", "Adds"};
const std::vector<std::string> kOptionHeadings{"Option", "Score"};

std::string Number(int number) { return PlainText(number); }
std::string Added(int number) { return "adds " + PlainText(number); }

// One letter and a number for each column, the second running faster: "W1 T1", "W1 T2".
void AddColumns(std::vector<std::string>& headings, char outer, int outers, char inner,
                int inners) {
  for (int i = 1; i <= outers; ++i) {
    for (int j = 1; j <= inners; ++j) {
      headings.push_back(outer + Number(i) + " " + inner + Number(j));
    }
  }
}

// The ribbons of a tool's array, those that may be up as what they add.
void AddRibbons(ExpectedTables& tables, const std::string& id,
                std::span<const PostureControl> controls, std::string_view array) {
  TableRows& rows = AddTable(tables, id, kButtonHeadings);
  for (const PostureControl& control : controls) {
    if (control.objectName != array) continue;
    for (int index = control.first; index <= control.last(); ++index) {
      const PostureChoice& ribbon = ChoiceAt(control, index);
      rows.push_back({Simplified(ribbon.caption), Simplified(ribbon.toolTip),
                      control.mayBeUp() ? Added(ribbon.score) : Number(ribbon.score)});
    }
  }
}

// Boxes and options, of which any control tells the others of its array.
void AddChoices(ExpectedTables& tables, const std::string& id,
                const std::vector<std::string>& headings, const PostureControl& control) {
  TableRows& rows = AddTable(tables, id, headings);
  for (const PostureChoice& choice : control.array) {
    rows.push_back({Simplified(choice.caption), Number(choice.score)});
  }
}

void AddRulaLookups(ExpectedTables& tables) {
  const halvane::RulaTables lookups = RULA_InitTables();
  std::vector<std::string> headings{"Upper arm", "Lower arm"};
  AddColumns(headings, 'W', 4, 'T', 2);
  TableRows& a = AddTable(tables, "rula-table-a", headings);
  for (int upper = 1; upper <= 6; ++upper) {
    for (int lower = 1; lower <= 3; ++lower) {
      std::vector<std::string> row{Number(upper), Number(lower)};
      for (int wrist = 1; wrist <= 4; ++wrist) {
        for (int twist = 1; twist <= 2; ++twist) {
          row.push_back(Number(lookups.RulaTableA.at(upper, lower, wrist, twist)));
        }
      }
      a.push_back(row);
    }
  }
  headings = {"Neck"};
  AddColumns(headings, 'T', 6, 'L', 2);
  TableRows& b = AddTable(tables, "rula-table-b", headings);
  for (int neck = 1; neck <= 5; ++neck) {
    std::vector<std::string> row{Number(neck)};
    for (int trunk = 1; trunk <= 6; ++trunk) {
      for (int leg = 1; leg <= 2; ++leg) {
        row.push_back(Number(lookups.RulaTableB.at(neck, trunk, leg)));
      }
    }
    b.push_back(row);
  }
  headings = {"Total A"};
  for (int total = 1; total <= 7; ++total) headings.push_back("B " + Number(total));
  TableRows& c = AddTable(tables, "rula-table-c", headings);
  for (int totalA = 1; totalA <= 8; ++totalA) {
    std::vector<std::string> row{Number(totalA)};
    for (int totalB = 1; totalB <= 7; ++totalB) {
      row.push_back(Number(lookups.RulaTableC.at(totalA, totalB)));
    }
    c.push_back(row);
  }
}

void AddRulaResults(ExpectedTables& tables) {
  TableRows& advice = AddTable(tables, "rula-advice", {"Grand score", "What the report says"});
  for (const Band& band : BandsOf(0, 12, 1, [](double score) {
         return std::string(RulaAdviceOn(static_cast<int>(score)).recommendation);
       })) {
    advice.push_back({band.range, band.result});
  }
  OpenSample("packing-line.qjt");
  kRulaHeadline.compute();
  const JobState& job = Module1;
  const auto sum = [](int base, int added, const std::string& of, const std::string& why) {
    return of + ", " + Number(base) + " and " + Number(added) + " for the " + why;
  };
  TableRows& rows = AddTable(tables, "rula-example", {"Step", "Value"});
  rows.push_back(
      {sum(job.RulaUpperArmFactors.at(0), job.RulaUpperArmFactors.at(2), "Upper arm", "abduction"),
       Number(job.RulaUpperArmScore)});
  rows.push_back({"Lower arm", Number(job.RulaLowerArmScore)});
  rows.push_back({sum(job.RulaWristFactors.at(0), job.RulaWristFactors.at(1), "Wrist", "side bend"),
                  Number(job.RulaWristScore)});
  rows.push_back({"Wrist twist", Number(job.RulaWristTwistScore)});
  rows.push_back({"Table A", Number(job.RulaArmWristPosture)});
  rows.push_back({sum(job.RulaNeckFactors.at(0), job.RulaNeckFactors.at(1), "Neck", "twist"),
                  Number(job.RulaNeckScore)});
  rows.push_back({"Trunk", Number(job.RulaTrunkScore)});
  rows.push_back({"Leg", Number(job.RulaLegScore)});
  rows.push_back({"Table B", Number(job.RulaNeckTrunkLegPosture)});
  rows.push_back({"Muscle score", Number(job.RulaMuscleScore)});
  rows.push_back({"Force score", Number(job.RulaForceScore)});
  rows.push_back({"Total A", Number(job.RulaArmWristTotal)});
  rows.push_back({"Total B", Number(job.RulaNeckTrunkLegTotal)});
  rows.push_back({"RULA Grand Score", Number(job.RulaGrandScore)});
}

void AddRebaLookups(ExpectedTables& tables) {
  const RebaTables lookups = REBA_InitTables();
  std::vector<std::string> headings{"Trunk"};
  AddColumns(headings, 'N', 3, 'L', 4);
  TableRows& a = AddTable(tables, "reba-table-a", headings);
  for (int trunk = 1; trunk <= 5; ++trunk) {
    std::vector<std::string> row{Number(trunk)};
    for (int neck = 1; neck <= 3; ++neck) {
      for (int leg = 1; leg <= 4; ++leg) {
        row.push_back(Number(lookups.RebaTableA.at(trunk, neck, leg)));
      }
    }
    a.push_back(row);
  }
  headings = {"Upper arm"};
  AddColumns(headings, 'L', 2, 'W', 3);
  TableRows& b = AddTable(tables, "reba-table-b", headings);
  for (int upper = 1; upper <= 6; ++upper) {
    std::vector<std::string> row{Number(upper)};
    for (int lower = 1; lower <= 2; ++lower) {
      for (int wrist = 1; wrist <= 3; ++wrist) {
        row.push_back(Number(lookups.RebaTableB.at(upper, lower, wrist)));
      }
    }
    b.push_back(row);
  }
  headings = {"Total B"};
  for (int total = 1; total <= 12; ++total) headings.push_back("A " + Number(total));
  TableRows& c = AddTable(tables, "reba-table-c", headings);
  for (int totalB = 1; totalB <= 12; ++totalB) {
    std::vector<std::string> row{Number(totalB)};
    for (int totalA = 1; totalA <= 12; ++totalA) {
      row.push_back(Number(lookups.RebaTableC.at(totalA, totalB)));
    }
    c.push_back(row);
  }
}

void AddRebaResults(ExpectedTables& tables) {
  TableRows& levels =
      AddTable(tables, "reba-levels", {"Grand score", "Action level", "Risk level", "Action"});
  const auto levelOf = [](double score) { return RebaActionLevelOf(static_cast<Integer>(score)); };
  int at = 0;
  for (const Band& band :
       BandsOf(0, 20, 1, [&](double score) { return std::string(levelOf(score).level); })) {
    while (levelOf(at).level != band.result) ++at;
    const RebaActionLevel level = levelOf(at);
    levels.push_back({band.range, band.result, std::string(level.risk), std::string(level.action)});
  }
  OpenSample("packing-line.qjt");
  kRebaHeadline.compute();
  const JobState& job = Module1;
  const auto sum = [](int base, int added, const std::string& of, const std::string& why) {
    return of + ", " + Number(base) + " and " + Number(added) + " for the " + why;
  };
  TableRows& rows = AddTable(tables, "reba-example", {"Step", "Value"});
  rows.push_back({sum(job.RebaNeckFactors.at(0), job.RebaNeckFactors.at(1), "Neck", "twist"),
                  Number(job.RebaNeckScore)});
  rows.push_back({"Trunk", Number(job.RebaTrunkScore)});
  rows.push_back({"Legs", Number(job.RebaLegScore)});
  rows.push_back({"Table A", Number(job.RebaScoreA)});
  rows.push_back({"Force score", Number(job.RebaForceScore)});
  rows.push_back({"Total A", Number(job.RebaScoreATotal)});
  rows.push_back(
      {sum(job.RebaUpperArmFactors.at(0), job.RebaUpperArmFactors.at(2), "Upper arm", "abduction"),
       Number(job.RebaUpperArmScore)});
  rows.push_back({"Lower arm", Number(job.RebaLowerArmScore)});
  rows.push_back({sum(job.RebaWristFactors.at(0), job.RebaWristFactors.at(1), "Wrist", "side bend"),
                  Number(job.RebaWristScore)});
  rows.push_back({"Table B", Number(job.RebaScoreB)});
  rows.push_back({"Coupling score", Number(job.RebaCouplingScore)});
  rows.push_back({"Total B", Number(job.RebaScoreBTotal)});
  rows.push_back({"Table C", Number(job.RebaGrandScore - job.RebaActivityScore)});
  rows.push_back({"Activity score", Number(job.RebaActivityScore)});
  rows.push_back({"REBA Grand Score", Number(job.RebaGrandScore)});
}

}  // namespace

ExpectedTables RulaPageTables() {
  ExpectedTables tables;
  const auto ribbons = [&tables](const std::string& id, std::string_view array) {
    AddRibbons(tables, id, kRulaControls, array);
  };
  const auto boxes = [&tables](const std::string& id, RulaControl first) {
    AddChoices(tables, id, kBoxHeadings, RowOf(first));
  };
  const auto options = [&tables](const std::string& id, RulaControl control) {
    AddChoices(tables, id, kOptionHeadings, RowOf(control));
  };
  ribbons("rula-upper-arms", "SSRibbon1");
  boxes("rula-upper-arm-boxes", RulaControl::ShoulderRaised);
  ribbons("rula-lower-arms", "SSRibbon2");
  ribbons("rula-wrist", "SSRibbon3");
  options("rula-twist", RulaControl::WristTwist);
  ribbons("rula-neck", "SSRibbon4");
  boxes("rula-neck-boxes", RulaControl::NeckTwist);
  ribbons("rula-trunk", "SSRibbon5");
  boxes("rula-trunk-boxes", RulaControl::TrunkTwist);
  options("rula-leg", RulaControl::Leg);
  options("rula-force", RulaControl::Force);
  boxes("rula-muscle", RulaControl::Static);
  AddRulaLookups(tables);
  AddRulaResults(tables);
  return tables;
}

ExpectedTables RebaPageTables() {
  ExpectedTables tables;
  const auto ribbons = [&tables](const std::string& id, std::string_view array) {
    AddRibbons(tables, id, kRebaControls, array);
  };
  const auto boxes = [&tables](const std::string& id, RebaControl first) {
    AddChoices(tables, id, kBoxHeadings, RowOf(first));
  };
  ribbons("reba-upper-arms", "SSRibbon1");
  boxes("reba-upper-arm-boxes", RebaControl::ShoulderRaised);
  ribbons("reba-lower-arms", "SSRibbon2");
  ribbons("reba-wrist", "SSRibbon3");
  ribbons("reba-neck", "SSRibbon4");
  boxes("reba-neck-boxes", RebaControl::NeckTwist);
  ribbons("reba-trunk", "SSRibbon5");
  boxes("reba-trunk-boxes", RebaControl::TrunkTwist);
  ribbons("reba-leg", "SSRibbon6");
  boxes("reba-force-boxes", RebaControl::Shock);
  boxes("reba-muscle", RebaControl::Static);
  // What is stored when one is set.
  RebaControls controls;
  const PostureControl& load = RowOf(RebaControl::Load);
  TableRows& loads = AddTable(tables, "reba-force", {"Load", "Score"});
  for (int index = 0; index <= load.last(); ++index) {
    controls.Set(load, index);
    loads.push_back({Simplified(ChoiceAt(load, index).caption), Number(load.factor.Value())});
  }
  const PostureControl& coupling = RowOf(RebaControl::Coupling);
  TableRows& couplings = AddTable(tables, "reba-coupling", {"Option", "Grip", "Score"});
  for (int index = 0; index <= coupling.last(); ++index) {
    controls.Set(coupling, index);
    couplings.push_back({Simplified(ChoiceAt(coupling, index).caption),
                         Simplified(ChoiceAt(coupling, index).toolTip),
                         Number(coupling.factor.Value())});
  }
  AddRebaLookups(tables);
  AddRebaResults(tables);
  return tables;
}

}  // namespace halvane

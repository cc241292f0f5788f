#include "platform/headless/TreePath.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/Translate.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/WizardRun.h"
#include "support/examples/ExampleLines.h"
#include "wizard/frame/WizardPages.h"

#include <gtest/gtest.h>

#include <algorithm>

// Every node of the tree that is built, as its user comes to it.

namespace
{
using namespace steps;

using WholeTree = PageTest;

struct TNode {
    std::string sPath;
    const TTreeRow* pRow;
};

/// The nodes from top to bottom.
std::vector<TNode> BuiltNodes()
{
    std::vector<TNode> nodes;
    std::string sCategory;
    for (const TTreeRow& rRow : gWizardTree()) {
        const std::string sLabel = xlang::gTranslate(rRow.pLabel).GetString();
        if (rRow.bCategory)
            sCategory = sLabel;
        if (rRow.pClass)
            nodes.push_back({rRow.bCategory ? sLabel : sCategory + '/' + sLabel, &rRow});
    }
    return nodes;
}

TEST_F(WholeTree, ArrowKeysLeadThroughAllNodesFromTopToBottom)
{
    CScript script;
    for (const TNode& rNode : BuiltNodes()) {
        script.Then([rNode](CDialog& rDialog) {
            const CTreeCtrl& rTree = gOpenWizard().GetTree();
            EXPECT_EQ(gTreePathOf(rTree, rTree.GetSelectedItem()), rNode.sPath);
            EXPECT_EQ(gClassName(gCurrentPane(rDialog)), rNode.pRow->sClass);
        });
        if (rNode.pRow->bCategory)
            script.Do({Key("right")}); // opens it
        if (rNode.sPath != BuiltNodes().back().sPath)
            script.Do({Key("down")});
    }
    gRunWizard(std::move(script));
}

TEST_F(WholeTree, EveryPageHasAnExampleThatInsertsSomethingAndNoCategoryHasOne)
{
    for (const TNode& rNode : BuiltNodes()) {
        const auto examples = gAllExamples();
        const bool bInserts = std::ranges::any_of(examples, [&rNode](const TExampleLine& rExample) {
            return rExample.sPage == rNode.sPath && !rExample.sLine.empty();
        });
        EXPECT_EQ(bInserts, !rNode.pRow->bCategory) << rNode.sPath;
    }
}
} // namespace

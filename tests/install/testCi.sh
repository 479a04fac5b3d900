#!/usr/bin/env bash
# Tests what docs/ci.md shows, as it stands there: the makefile rule, the script and the hooks; the hooks by pre-commit
# itself where that is installed.
#   testCi.sh REPOSITORY PREFIX
. "$(dirname "${BASH_SOURCE[0]}")/support.sh"
repository=$1
export PATH=$2/bin:$PATH
. "$(dirname "${BASH_SOURCE[0]}")/packageProject.sh"

# The indented text below a heading of the document, without its indent.
shown() { # heading
    awk -v heading="## $1" '/^## /{is_there = $0 == heading} is_there && /^    /{print substr($0, 5)}' \
        "$repository/docs/ci.md"
}

cd "$scratch" # make takes no blanks
mkdir models
write_model models/Base.xml Buoy

# The rule.
shown "In a makefile" >Makefile
check ruleIsShown grep -q qxgen Makefile
same ruleGenerates 0 "$(make -s >log 2>&1; echo $?)"
check ruleWritesFiles test -e generated/buoyPublisherHLA.h
holds_not secondMakeHasNothingToDo qxgen "$(make)"
before=$(stat -c %y generated/buoyPublisherHLA.h)
sleep 1.1
write_model models/Base.xml Buoy Nun
holds changedModelGenerates "qxgen generate" "$(make)"
check changedModelIsInTheOutput test -e generated/nunPublisherHLA.h
same fileThatDoesNotChangeKeepsItsTime "$before" "$(stat -c %y generated/buoyPublisherHLA.h)"

# The script.
shown "In a script" >check
script() {
    status=0
    word=$(sh ./check 2>&1) || status=$?
}
script
same scriptEndsWith0WhenAllIsWell "0 The generated code is that of the models." "$status $word"
check scriptLeavesAReport test -s report.html -a -s report.json
write_model models/Base.xml Buoy
script
same scriptEndsWith4ForAnotherModel 4 "$status"
holds scriptTellsTheRemedy "Generate again and commit: qxgen generate models/Base.xml -o generated" "$word"
echo '// mine' >>generated/buoyPublisherHLA.h
script
same scriptEndsWith3OnWarnings 3 "$status"
holds scriptShowsTheWarnings "buoyPublisherHLA.h: warning: was edited by hand" "$word"
echo '</broken>' >models/Base.xml
script
same scriptEndsWith2WithoutModels 2 "$status"
holds scriptSaysThatItCouldNotCheck "could not be carried out" "$word"

# The hooks.
write_model models/Base.xml Buoy
hook() { # id arguments; as pre-commit starts it
    local entry
    entry=$(awk -v id="$1" '$1 == "-" {is_it = $3 == id} is_it && $1 == "entry:" {sub(/^ *entry: */, ""); print}' \
        "$repository/.pre-commit-hooks.yaml")
    shift
    status=0
    log=$($entry "$@" 2>&1) || status=$?
}
hook qxgen-models models/Base.xml
same hookLetsAGoodModelThrough 0 "$status"
hook qxgen-verify models/Base.xml -o generated
same hookFindsOldCode "4 D nunDecoderHLA.cxx" "$status $(grep -m1 ' nun' <<<"$log")"
qxgen generate models/Base.xml -o generated 2>"$scratch/told"
hook qxgen-verify models/Base.xml -o generated
same hookLetsNewCodeThrough "0 " "$status $log"
mkdir templates
echo '<!NoSuchToken!>' >templates/enums.tlt
hook qxgen-lint-templates templates
same hookFindsAWrongTemplate 3 "$status"
for id in $(shown "Ahead of a commit" | sed -n 's/.*- id: //p'); do
    check "hookIsDefined $id" grep -q "^- id: $id\$" "$repository/.pre-commit-hooks.yaml"
done

if ! command -v pre-commit >/dev/null; then
    echo "SKIP   : install.Ci(hooks by pre-commit) pre-commit is not installed"
    end_tests
    exit
fi
export HOME=$work/home GIT_CONFIG_NOSYSTEM=1 GIT_AUTHOR_NAME=a GIT_AUTHOR_EMAIL=a@b GIT_COMMITTER_NAME=a \
    GIT_COMMITTER_EMAIL=a@b
mkdir "$HOME" hooks user
cp "$repository/.pre-commit-hooks.yaml" hooks/
(cd hooks && git init -q && git add .pre-commit-hooks.yaml && git commit -qm hooks && git tag v5.10)
cd user
mkdir models templates
write_model models/Base.xml Buoy
cp "$repository/data/templates/enums.tlt" templates/
shown "Ahead of a commit" | sed "s,/path/or/address/of/the/generator,$PWD/../hooks,; s|, models/Extension.xml||" \
    >.pre-commit-config.yaml
qxgen generate models/Base.xml -o generated 2>"$scratch/told"
git init -q
git add .
status=0
log=$(pre-commit run --all-files 2>&1) || status=$?
same allHooksPass "0 3" "$status $(grep -c Passed <<<"$log")"
write_model models/Base.xml Buoy Nun
git add .
status=0
log=$(pre-commit run --all-files 2>&1) || status=$?
same changedModelFailsTheOneHook "1 2" "$status $(grep -c Passed <<<"$log")"
holds hookShowsWhatWouldChange "A nunPublisherHLA.h" "$log"
end_tests

#!/usr/bin/env bash
# Photographs the studio and its dialogs for docs/, in English and Italian, in a virtual X
# server (with openbox for window frames, when it is installed). Run after `make build`:
#   scripts/docs-screenshots.sh [build/default]
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/default}
if [ -z "${SEISPLOT_SHOTS_IN_X:-}" ]; then
    exec env SEISPLOT_SHOTS_IN_X=1 xvfb-run -a -s "-screen 0 1280x800x24" "$0" "$build"
fi
command -v openbox >/dev/null && { openbox >/dev/null 2>&1 & sleep 1; }

studio=$build/apps/studio/seisplot-studio
# A fixed folder, so that the paths the dialogs show read the same from one run to the next.
folder=${TMPDIR:-/tmp}/seisplot-demo
rm -rf "$folder"
mkdir -p "$folder"
trap 'rm -rf "$folder"' EXIT
project=$folder/demo.spj
imports=()
for f in data/samples/*.ASC data/samples/*.RA data/samples/*.TR data/samples/*.UP; do
    imports+=(--import "$f")
done
# Two envelope spectra of the samples, made by the command line, for the spectrum dialogs.
seisplot=$build/apps/seisplot/seisplot
"$seisplot" import data/samples/*.ASC --quiet -o "$folder/set.acc" >/dev/null
"$seisplot" envelope "$folder/set.acc" --modes data/samples/structure.modes \
    --spectra "$folder/demo.spc" >/dev/null
"$seisplot" envelope "$folder/set.acc" --tmax 3 --dt 0.02 --percentile 84 \
    --spectra "$folder/demo.spc" >/dev/null
imports+=(--import "$folder/demo.spc")
"$studio" "${imports[@]}" --save-as "$project" --quit
# Two records copied to the project's curves, for the curve dialogs.
"$studio" "$project" --select Records/1 --action copyToCurves --save-as "$project" --quit
"$studio" "$project" --select Records/2 --action copyToCurves --save-as "$project" --quit

# shot NAME ACTION [studio options...]: the whole screen with the dialog of ACTION open.
shot() {
    local name=$1 action=$2
    shift 2
    for language in en it; do
        "$studio" "$project" --language "$language" "$@" --open-dialog "$action" \
            --dialog-screenshot "docs/$name-$language.png" --quit
    done
}
shot studio-arc-dialog addArc --select Records/2
shot curve-display showCurves --select Curves/1
shot curve-mixing mixCurves --select Curves/1
shot record-management manageRecords --select Records/1
shot record-details recordDetails --select Records/1
shot time-function timeFunction
shot spectrum-editor editSpectra --select Spectra/1
shot envelope-spectra envelopeSpectra --modes data/samples/structure.modes
# A T-shaped section in the polygon dialog, and its preset shapes over it.
section="0,0 30,0 30,60 60,60 60,70 -30,70 -30,60 0,60"
shot studio-polygon-dialog polygonInput --polygon "$section" --select Polygon
shot studio-special-polygons polygonInput --polygon "$section" --select Polygon --dialog-click 14614
"$studio" "$project" --polygon "$section" --select Polygon --screenshot docs/studio-polygon-view.png \
    --quit
echo "docs-screenshots: written to docs/"

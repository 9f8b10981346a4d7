#!/usr/bin/env bash
# Runs a study as a Slurm job array on this machine alone, kills a worker in the middle, and compares with a run without
# Slurm: slurm_von_hand.sh VELMARIS_RECHNEN [ROWS]. As root; needs the packages munge, slurmctld, slurmd and slurm-client.
set -euo pipefail
programm=$(readlink -f "$1") zeilen=${2:-100000} teile=4
quelle=$(cd "$(dirname "$(readlink -f "$0")")/../.." && pwd)
ort=$(mktemp -d)
chmod 755 "$ort"
mkdir "$ort"/{munge,stand,spool}
chown munge: "$ort/munge"
prozesse=()
aufraeumen() {
    kill "${prozesse[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    [ -n "${BEHALTEN:-}" ] && echo "kept: $ort" || rm -rf "$ort"
}
trap aufraeumen EXIT

dd if=/dev/urandom of="$ort/munge/key" bs=128 count=1 2>/dev/null
chown munge: "$ort/munge/key" && chmod 600 "$ort/munge/key"
setpriv --reuid=munge --regid=munge --init-groups munged --foreground --key-file="$ort/munge/key" \
    --socket="$ort/munge/socket" --pid-file="$ort/munge/pid" --log-file="$ort/munge/log" --seed-file="$ort/munge/seed" > /dev/null 2>&1 &
prozesse+=($!)

cat > "$ort/slurm.conf" <<CONF
ClusterName=probe
SlurmctldHost=$(hostname)
SlurmUser=root
SlurmdUser=root
AuthType=auth/munge
AuthInfo=socket=$ort/munge/socket
CredType=cred/munge
SlurmctldPort=16817
SlurmdPort=16818
StateSaveLocation=$ort/stand
SlurmdSpoolDir=$ort/spool
SlurmctldPidFile=$ort/slurmctld.pid
SlurmdPidFile=$ort/slurmd.pid
SlurmctldLogFile=$ort/slurmctld.log
SlurmdLogFile=$ort/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
JobRequeue=1
ReturnToService=2
SchedulerParameters=sched_interval=2
NodeName=$(hostname) CPUs=$(nproc) State=UNKNOWN
PartitionName=alle Nodes=ALL Default=YES MaxTime=INFINITE State=UP
CONF
echo "CgroupAutomount=no" > "$ort/cgroup.conf"
export SLURM_CONF=$ort/slurm.conf
for ((i = 0; i < 50; ++i)); do [ ! -S "$ort/munge/socket" ] || break; sleep 0.1; done
slurmctld -D -f "$SLURM_CONF" > /dev/null 2>&1 & prozesse+=($!)
slurmd -D -f "$SLURM_CONF" > /dev/null 2>&1 & prozesse+=($!)
for ((i = 0; i < 300; ++i)); do sinfo -h -o %t 2>/dev/null | grep -q idle && break; sleep 0.2; done
sinfo || { tail -5 "$ort"/*.log; exit 1; }

cd "$ort"
cp "$quelle/samples/altes_haus.vel" "$quelle"/samples/studies/*.sh .
awk -v n="$zeilen" 'BEGIN { printf "kws,fs,Troom,Klimadatei\r\n"; for (i = 0; i < n; ++i)
    printf "%.2f,%d,%.1f,%s\r\n", 0.1 + i % 130 / 100, i % 61, 18 + i % 41 / 10, i % 3 ? "trier.met" : "hamburg.met" }' > plan.csv
beginn=$(date +%s.%N)
"$programm" altes_haus.vel --plan plan.csv --ausgabe ohne.csv
echo "without Slurm: $(echo "$(date +%s.%N) - $beginn" | bc) s"

beginn=$(date +%s.%N)
export VELMARIS=$programm
auftrag=$(sbatch --parsable --array=1-$teile slurm.sh altes_haus.vel plan.csv ergebnis $teile)
while [ ! -s ergebnis_3.csv ] || [ "$(wc -l < ergebnis_3.csv)" -lt 2 ]; do sleep 0.05; done
opfer=$(pgrep -f "^$programm altes_haus.vel .*--teil 3/$teile" | head -1) || true
if [ -n "$opfer" ]; then
    kill -KILL "$opfer"
    echo "killed the worker of the third task after $(wc -l < ergebnis_3.csv) lines"
    until scontrol show job "${auftrag}_3" | grep -q JobState=FAILED; do sleep 0.2; done
    scontrol requeue "${auftrag}_3"
fi
while squeue -h -j "$auftrag" 2>/dev/null | grep -q .; do
    sleep 1
    # A task that is queued again has to wait for two minutes; not here.
    for halt in $(squeue -h -j "$auftrag" -t PD -o %i 2>/dev/null); do
        scontrol update JobId="$halt" StartTime=now 2>/dev/null || true
        scontrol release "$halt" 2>/dev/null || true
    done
done
echo "as an array of $teile tasks: $(echo "$(date +%s.%N) - $beginn" | bc) s"
scontrol show job "${auftrag}_3" 2>/dev/null | grep -o "Restarts=[0-9]*" || true
./zusammenfuegen.sh ergebnis $teile plan.csv mit.csv
cmp ohne.csv mit.csv
echo "the $(($(wc -l < mit.csv) - 1)) rows are the same, byte for byte"

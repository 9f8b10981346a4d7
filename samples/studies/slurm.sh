#!/usr/bin/env bash
# A study as a Slurm job array, a part for each task; what is requeued goes on where it was stopped:
#   TEILE=50; sbatch --array=1-$TEILE slurm.sh HAUS.vel PLAN.csv ergebnis $TEILE
#   zusammenfuegen.sh ergebnis $TEILE PLAN.csv ganz.csv        (when all tasks have ended)
#SBATCH --job-name=velmaris
#SBATCH --cpus-per-task=1
#SBATCH --requeue
#SBATCH --open-mode=append
#SBATCH --output=%x_%A_%a.log
set -eu
exec "${VELMARIS:-velmaris_rechnen}" "$1" --plan "$2" --teil "$SLURM_ARRAY_TASK_ID/$4" \
    --kerne "${SLURM_CPUS_PER_TASK:-1}" --ausgabe "$3_$SLURM_ARRAY_TASK_ID.csv" --fortsetzen

# Completion of kvtool for bash. Written by scripts/kvtool-pages.
# shellcheck shell=bash

_kvtool() {
  local word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]} command='' values='' i
  # "--rate=25" comes as three words.
  if [[ $word == = ]]; then
    word=''
  elif [[ $option == = ]]; then
    option=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      timecode | gaps | probe | formats | colorspaces | essence | umid | multiviewer | sdp | srt)
        command=${COMP_WORDS[i]}
        break
        ;;
    esac
  done

  COMPREPLY=()
  case $command:$option in
    :--color | timecode:--color | gaps:--color | probe:--color | formats:--color | colorspaces:--color | essence:--color | umid:--color | multiviewer:--color | sdp:--color | srt:--color) values='auto always never' ;;
    timecode:--rate | gaps:--rate | formats:--rate) values='24 25 30 50 60 23.976 29.97 59.94 24000/1001 30000/1001 60000/1001' ;;
    gaps:--input) values='text st12 st12-64 ltc media' ;;
    formats:--name) values='Ntsc Pal Hd1080p2398 Hd1080p24 Hd1080p25 Hd1080p2997 Hd1080p30 Hd1080p50 Hd1080p50Alt Hd1080p5994 Hd1080p5994Alt Hd1080p60 Hd1080p60Alt Hd1080i50 Hd1080i5994 Hd1080i60 Hd720p50 Hd720p5994 Hd720p60 Hd1080p2997Alt Hd1080p25Alt Hd1080p2398Alt Uhd2160p60 Uhd2160p60Alt Uhd2160p5994 Uhd2160p5994Alt Uhd2160p50 Uhd2160p50Alt Uhd2160p30 Uhd2160p2997 Uhd2160p25 Uhd2160p24 Uhd2160p2398 Uhd2160p2997Alt Uhd2160p25Alt Uhd2160p2398Alt Hd1080p2997Alt2 Hd1080p25Alt2 UnknownFormat' ;;
    formats:--scanning) values='interlaced progressive' ;;
    formats:--aspect) values='4/3 16/9' ;;
    formats:--uhd | essence:--dnx | essence:--prores) values='yes no' ;;
    colorspaces:--name) values='ColorspaceUndefined Yuv420p Yuv422p Uyvy V210 V216 Colorspace6 Colorspace7 Yuv422p10le Yuv422p10leAlt Colorspace10 Rgb24 Argb Rgba Rgba64 Rgba64Alt Dpx10 Smpte2110Yuv10 Yuv420pAlt' ;;
    essence:--name) values='EssenceNone EssenceAudio EssenceDnxhd EssenceVideo3 EssenceOther4 EssenceMpeg2 EssenceVideo6 EssenceAudio7 EssencePcm EssenceAiff EssenceAudio10 EssenceUncompressed EssenceVideo12 EssenceVideo13 EssenceVideo14 EssenceAvcIntra EssenceProres16 EssenceProres17 EssenceProres18 EssenceProres19 EssenceProres20 EssenceProres21 EssenceVideo22 EssenceDnx23 EssenceDnx24 EssenceDnx25 EssenceDnx26 EssenceDnx27 EssenceData EssenceOther29 EssenceVideo30 EssenceVideo31 EssenceVideo32 EssenceVideo33 EssenceVideo34 EssenceVideo35 EssenceVideo36 EssenceVideo37 EssenceVideo38 EssenceVideo39' ;;
    essence:--family) values='audio video data none' ;;
    multiviewer:--svg | srt:--passphrase-file)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
      ;;
    timecode:--add | timecode:--add-minutes | timecode:--days | timecode:--format | formats:--value | formats:--width | formats:--height | colorspaces:--width | colorspaces:--height | colorspaces:--value | colorspaces:--planes | colorspaces:--depth | essence:--value | srt:--connect | srt:--listen | srt:--period | srt:--count | srt:--wait)
      return
      ;;
  esac
  if [[ -z $values && $word == -* ]]; then
    case $command in
      '') values='-h --help --version --color' ;;
      'timecode') values='-h --help --rate --drop --repair --add --add-minutes --days --format --json --color' ;;
      'gaps') values='-h --help --input --rate --drop --field-mark --json --color' ;;
      'probe') values='-h --help --json --color' ;;
      'formats') values='-h --help --value --name --width --height --scanning --rate --aspect --uhd --csv --json --color' ;;
      'colorspaces') values='-h --help --width --height --value --name --planes --depth --csv --json --color' ;;
      'essence') values='-h --help --value --name --family --dnx --prores --csv --json --color' ;;
      'umid') values='-h --help --json --color' ;;
      'multiviewer') values='-h --help --svg --json --color' ;;
      'sdp') values='-h --help --json --color' ;;
      'srt') values='-h --help --connect --listen --passphrase-file --period --count --wait --csv --json --color' ;;
    esac
  elif [[ -z $values && -z $command ]]; then
    values='timecode gaps probe formats colorspaces essence umid multiviewer sdp srt'
  fi
  if [[ -n $values ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
    return
  fi
  case $command in
    gaps | probe | multiviewer | sdp)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      ;;
  esac
}

complete -F _kvtool kvtool

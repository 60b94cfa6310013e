; STAR CATCHER
; A small ship over the mountains at night. Catch the stars, keep away from the rocks.
; Stick: fly. Button: fly faster. Left difficulty A: everything falls faster. Reset, or the button when all
; is over: again.

        processor 6502
        include "tia.inc"
        include "frame.inc"

LINES       = 125               ; of the sky; counted down to 1
BAND        = 26                ; the sky is cut in bands that fall, one thing in each
BANDS       = 6
LEFTMOST    = 16
RIGHTMOST   = 133
LOWEST      = 20                ; the line of the ship's upper edge
HIGHEST     = 100
SHIP_LINES  = 18
LAND        = 26                ; lines of mountains

NOTHING     = 0                 ; what is in a band: where its picture begins in Shapes
STAR        = 32
STAR_2      = 64
ROCK        = 96
ROCK_2      = 128
SPARK       = 160
AIM_SHIFT   = 16                ; for Aim, by the cycle of the starts below
SHAPE_TOP   = 22                ; the first line to be shown of a band, three go by in placing it

        seg.u memory
        org $80
Score       ds 3
Figures     ds 12
Count       ds 1
Spare       ds 1
Random      ds 1
Frame       ds 1
ShipX       ds 1
ShipY       ds 1
Lives       ds 1
Hurt        ds 1                ; frames that the ship still blinks, and can't be hit
Fallen      ds 1                ; lines of the top band that can be seen, 1 to BAND
Part        ds 1                ; of a line
Pace        ds 1                ; 1/32 lines a frame
Tone        ds 1                ; frames that the sound still lasts
Over        ds 1                ; frames since the last ship was lost, 60 at most
Ship        ds 2
ShipInk     ds 2
Twinkle     ds 2
Now         ds 1                ; the band being drawn
Next        ds 1                ; the line where the next one begins
Wait        ds 1
Kind        ds BANDS
Coarse      ds BANDS
Fine        ds BANDS
Hit         ds BANDS
Ends        ds BANDS

        seg code
        org $F000

Start   POWER_ON
        lda #$5B
        sta Random
        jsr NewGame

MainLoop
        FRAME_BEGINS
        jsr Steer
        jsr Fall
        jsr Prepare
        PICTURE_BEGINS
        jsr Picture
        PICTURE_ENDS
        jsr Judge
        jsr Sound
        FRAME_ENDS
        jmp MainLoop

NewGame subroutine
        lda #0
        sta Score
        sta Score+1
        sta Score+2
        sta Over
        lda #3
        sta Lives
        lda #75
        sta ShipX
        lda #30
        sta ShipY
        lda #1
        sta Fallen
        lda #20
        sta Pace
        ldx #BANDS-1
.fill   jsr NewThing
        dex
        bpl .fill
        lda #100                ; time to look around
        sta Hurt
        rts

; ---- what the player does

Steer   subroutine
        inc Frame
        jsr Roll
        lda SWCHB
        lsr
        bcc NewGame
        lda Lives
        bne .alive
        lda Over
        cmp #60
        bcs .ready
        inc Over
        rts
.ready  bit INPT4
        bpl NewGame
        rts

.alive  jsr .move
        bit INPT4
        bmi .done
.move   lda SWCHA
        ldx ShipX
        asl
        bcs .notright
        cpx #RIGHTMOST
        beq .notright
        inx
.notright
        asl
        bcs .notleft
        cpx #LEFTMOST
        beq .notleft
        dex
.notleft
        stx ShipX
        ldx ShipY
        asl
        bcs .notdown
        cpx #LOWEST
        beq .notdown
        dex
.notdown
        asl
        bcs .notup
        cpx #HIGHEST
        beq .notup
        inx
.notup  stx ShipY
.done   rts

; ---- the sky falls

Fall    subroutine
        lda Pace
        bit SWCHB
        bvc .easy
        asl
.easy   clc
        adc Part
        tax
        and #31
        sta Part
        txa
        lsr
        lsr
        lsr
        lsr
        lsr
        clc
        adc Fallen
        sta Fallen
        cmp #BAND+1
        bcc .same
        sbc #BAND
        sta Fallen
        ldx #BANDS-2
.down   lda Kind,x
        sta Kind+1,x
        lda Coarse,x
        sta Coarse+1,x
        lda Fine,x
        sta Fine+1,x
        dex
        bpl .down
        ldx #0
        jsr NewThing
.same   rts

; Something new in band X, at a place of its own.
NewThing subroutine
        jsr Roll
        and #7
        tay
        lda Chance,y
        sta Kind,x
        jsr Roll
        and #127
        cmp #RIGHTMOST-LEFTMOST+1
        bcc .inside
        sbc #64
.inside clc
        adc #LEFTMOST+AIM_SHIFT
        jsr Aim
        sta Fine,x
        tya
        sta Coarse,x
        rts

Chance  .byte STAR, STAR, STAR, ROCK, ROCK, ROCK, NOTHING, STAR

; ---- what the picture needs

Prepare subroutine
        jsr SetFigures

        lda #LINES              ; where each band ends; the last leaves no room for a placing
        sec
        sbc Fallen
        ldx #0
.ends   sta Ends,x
        sec
        sbc #BAND
        bcc .out
        cmp #4
        bcs .in
.out    lda #0
.in     inx
        cpx #BANDS
        bne .ends

        ldx #0                  ; the stars turn, the rocks tumble
        lda Frame
        and #24
        cmp #24
        bne .still
        ldx #STAR_2-STAR
.still  stx Spare
        ldx #BANDS-1
.frames lda Kind,x
        beq .none
        cmp #SPARK
        beq .none
        cmp #ROCK
        bcs .rock
        lda #STAR
        .byte $2C               ; skips the next instruction
.rock   lda #ROCK
        clc
        adc Spare
        sta Kind,x
.none   dex
        bpl .frames

        lda #<(ShipShape+SHIP_LINES)    ; so far ahead that line ShipY meets the top
        sec
        sbc ShipY
        sta Ship
        lda #>(ShipShape+SHIP_LINES)
        sbc #0
        sta Ship+1
        lda #<ShipPaint
        sec
        sbc ShipY
        sta ShipInk
        lda #>ShipPaint
        sbc #0
        sta ShipInk+1
        lda Lives
        beq .hidden
        lda Hurt
        beq .shown
        dec Hurt
        and #4
        beq .shown
.hidden lda #<Blank
        sta Ship
        lda #>Blank
        sta Ship+1
.shown
        lda #<Stars1
        ldx #>Stars1
        ldy Frame
        cpy #160
        bcc .calm
        lda #<Stars2
        ldx #>Stars2
.calm   sta Twinkle
        stx Twinkle+1
        rts

; ---- the picture: 192 lines

        align 256               ; keeps the timed loops within a page
Picture subroutine
        sta WSYNC
        ldx #$1E
        lda Over
        beq .gold
        lda Frame
        and #16
        beq .gold
        ldx #$44
.gold   jsr ShowFigures

        lda Fine
        sta HMP1
        lda #70
        ldx #4
        jsr Place
        lda ShipX
        ldx #0
        jsr Place
        sta WSYNC               ; as in the lines that begin a band
        lda #0
        sta CTRLPF
        sta Now
        sta CXCLR
        nop
        ldx Coarse
        TURNS
        sta RESP1
        sta WSYNC
        sta HMOVE
        lda #1
        sta VDELP1
        lda #$0C
        sta COLUPF
        lda Ends
        sta Next
        lda #0
        sta HMP0
        sta HMP1
        sta HMBL
        lda Kind
        clc
        adc Fallen
        tax
        dex
        lda Shapes,x
        sta GRP1
        ldy #LINES
        lda (Ship),y

SkyLine
        sta WSYNC
        sta HMOVE
        sta GRP0
        lda Sky,y
        sta COLUBK
        lda Paint,x
        sta COLUP1
        lda (ShipInk),y
        sta COLUP0
        lda (Twinkle),y
        sta ENABL
        lda Drift,y
        sta HMBL
        dex
        lda Shapes,x
        sta GRP1
        dey
        lda (Ship),y
        cpy Next
        bne SkyLine
        cpy #0
        beq Horizon

        sta WSYNC               ; the next band: what was hit in this one, and where it begins
        sta HMOVE
        sta GRP0
        lda Drift,y
        sta ENABL               ; off: a drift has no D1
        lda Sky,y
        sta COLUBK
        ldx Now
        lda CXPPMM
        sta Hit,x
        sta CXCLR
        inx
        stx Now
        lda Fine,x
        sta HMP1
        lda Coarse,x
        sta Wait
        lda Drift,y
        sta HMBL
        dey
        lda (Ship),y

        sta WSYNC
        sta HMOVE
        sta GRP0
        lda Sky,y
        sta COLUBK
        ldx Wait
        TURNS
        sta RESP1
        lda Drift,y
        sta HMBL
        dey

        sta WSYNC
        sta HMOVE
        lda (Ship),y
        sta GRP0
        lda Sky,y
        sta COLUBK
        lda (ShipInk),y
        sta COLUP0
        ldx Now
        lda Ends,x
        sta Next
        lda Drift,y
        sta HMBL
        lda Kind,x
        clc
        adc #SHAPE_TOP
        tax
        lda #0
        sta HMP1
        dey
        lda (Ship),y
        jmp SkyLine

Horizon
        ldx #0
        sta WSYNC
        sta HMOVE
        stx GRP1
        stx GRP0
        stx ENABL
        stx HMBL
        lda Glow+LAND
        sta COLUBK
        stx VDELP1
        ldx Now
        lda CXPPMM
        sta Hit,x
        ldx #LAND-1
        lda Ridge+LAND-1

Land
        sta WSYNC
        sta HMOVE
        sta COLUPF
        lda Glow,x
        sta COLUBK
        lda Land0,x
        sta PF0
        lda Land1,x
        sta PF1
        lda Land2,x
        sta PF2
        lda Land3,x
        sta PF0
        lda Land4,x
        sta PF1
        lda Land5,x
        sta PF2
        lda Ridge-1,x
        dex
        bpl Land

        lda #0
        sta WSYNC
        sta HMOVE
        sta COLUBK
        sta PF0
        sta PF1
        sta PF2
        lda #16                 ; the ships that are left
        ldx #0
        jsr Place
        ldy Lives
        lda Copies,y
        sta NUSIZ0
        sta WSYNC
        sta HMOVE
        ldx #SHIP_LINES
.left   lda #0
        cpy #2
        bcc .none
        lda ShipShape,x
.none   sta WSYNC
        sta GRP0
        lda ShipPaint-SHIP_LINES,x
        sta COLUP0
        dex
        bne .left
        stx GRP0
        stx NUSIZ0
        rts

Copies  .byte 0, 0, 0, 1        ; the one in flight isn't shown

; ---- what came of it

Judge   subroutine
        ldx #BANDS-1
.band   lda Hit,x
        bpl .miss
        lda #0
        sta Hit,x
        lda Kind,x
        cmp #SPARK
        bcs .miss
        cmp #ROCK
        bcs .rock
        lda #SPARK
        sta Kind,x
        lda #10
        sta Tone
        lda #$10
        jsr Points
        lda Score+2             ; faster with each hundred points
        bne .miss
        lda Pace
        cmp #60
        bcs .miss
        adc #2
        sta Pace
        jmp .miss
.rock   lda Hurt
        ora Over
        bne .miss
        lda #120
        sta Hurt
        lda #30+128
        sta Tone
        dec Lives
        bne .miss
        inc Over
.miss   dex
        bpl .band
        rts

; A rising ring for a star, a falling rumble for a rock.
Sound   subroutine
        lda Tone
        and #127
        beq .quiet
        tax
        dec Tone
        lda Tone
        bmi .rumble
        stx AUDF0
        lda #4
        sta AUDC0
        lda #6
        sta AUDV0
        rts
.rumble lda #31
        sta AUDF0
        lda #8
        sta AUDC0
        txa
        lsr
        .byte $2C               ; skips the next instruction
.quiet  lda #0
        sta AUDV0
        rts

        include "random.inc"
        include "place.inc"
        include "score.inc"

        align 256
; 32 entries each, of which the first is shown last; then their colours
Shapes  ds 32,0                 ; nothing
        ds 5,0                  ; star
        .byte %10000001
        .byte %11000011
        .byte %01100110
        .byte %01111110
        .byte %01111110
        .byte %00111100
        .byte %00111100
        .byte %01111110
        .byte %11111111
        .byte %11111111
        .byte %00111100
        .byte %00111100
        .byte %00011000
        .byte %00011000
        .byte %00011000
        ds 12,0
        ds 5,0                  ; star, from the side
        .byte %00100100
        .byte %00100100
        .byte %00100100
        .byte %00111100
        .byte %00111100
        .byte %00011000
        .byte %00111100
        .byte %00111100
        .byte %01111110
        .byte %00111100
        .byte %00111100
        .byte %00011000
        .byte %00011000
        .byte %00011000
        .byte %00011000
        ds 12,0
        ds 5,0                  ; rock
        .byte %00111100
        .byte %01111110
        .byte %10111111
        .byte %11111011
        .byte %11111111
        .byte %11001111
        .byte %11101111
        .byte %11111111
        .byte %01111110
        .byte %00111100
        .byte %01111010
        .byte %00101001
        .byte %01010100
        .byte %00010100
        .byte %00100010
        ds 12,0
        ds 5,0                  ; rock, turned
        .byte %00111100
        .byte %01110110
        .byte %11111111
        .byte %11111101
        .byte %11011111
        .byte %11111111
        .byte %11111011
        .byte %11111111
        .byte %01111110
        .byte %00111100
        .byte %01011110
        .byte %10010100
        .byte %00101010
        .byte %00101000
        .byte %01000100
        ds 12,0
        ds 5,0                  ; spark
        .byte %00000000
        .byte %00010000
        .byte %00010000
        .byte %10010010
        .byte %01000100
        .byte %00101000
        .byte %00000000
        .byte %11000011
        .byte %11000011
        .byte %00000000
        .byte %00101000
        .byte %01000100
        .byte %10010010
        .byte %00010000
        .byte %00010000
        ds 12,0
        ds 64,0
        align 256
Paint   ds 32,0
        ds 5,$24                ; star
        .byte $24, $26, $28, $18, $18, $1A, $1A, $1C, $1C, $1E, $1C, $1E, $1E, $1E, $1E
        ds 12,$1E
        ds 5,$24                ; star
        .byte $24, $26, $28, $18, $18, $1A, $1A, $1C, $1C, $1E, $1C, $1E, $1E, $1E, $1E
        ds 12,$1E
        ds 5,$04                ; rock
        .byte $04, $06, $06, $08, $08, $0A, $0A, $0C, $0A, $2C, $2A, $38, $36, $44, $42
        ds 12,$42
        ds 5,$04                ; rock
        .byte $04, $06, $06, $08, $08, $0A, $0A, $0C, $0A, $2C, $2A, $38, $36, $44, $42
        ds 12,$42
        ds 5,$1E                ; spark
        .byte $1E, $1E, $1E, $0E, $1E, $0E, $1E, $0E, $1E, $0E, $1E, $0E, $1E, $0E, $1E
        ds 12,$1E
        ds 64,0

; Sky, from the horizon up. Two hues that meet alternate for some lines.
        align 256
Sky     .byte $46,$46,$46,$46,$46,$46,$46,$46,$46,$46,$56,$46,$56
        .byte $46,$56,$46,$56,$56,$56,$56,$56,$54,$56,$54,$56,$54
        .byte $56,$54,$54,$54,$54,$54,$54,$52,$54,$52,$54,$52,$54
        .byte $52,$52,$52,$52,$52,$52,$52,$52,$62,$52,$62,$52,$62
        .byte $52,$62,$62,$62,$62,$62,$62,$62,$62,$62,$62,$60,$62
        .byte $60,$62,$60,$62,$60,$60,$60,$60,$60,$60,$60,$60,$60
        .byte $60,$60,$70,$60,$70,$60,$70,$60,$70,$70,$70,$70,$70
        .byte $70,$70,$70,$70,$70,$70,$80,$70,$80,$70,$80,$70,$80
        .byte $80,$80,$80,$80,$80,$80,$80,$80,$80,$80,$00,$80,$00
        .byte $80,$00,$80,$00,$00,$00,$00,$00,$00
; The stars of the background are the ball: how it moves from line to line, and where it shows
Drift   .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$60,$60
        .byte $60,$60,$60,$60,$70,$60,$70,$60,$60,$60,$60,$70,$60
        .byte $70,$60,$60,$60,$60,$A0,$A0,$A0,$A0,$A0,$A0,$90,$A0
        .byte $90,$A0,$90,$90,$B0,$A0,$B0,$A0,$B0,$A0,$B0,$60,$60
        .byte $60,$60,$60,$50,$60,$50,$60,$60,$50,$60,$50,$60,$60
        .byte $50,$50,$50,$50,$A0,$A0,$A0,$A0,$A0,$90,$A0,$90,$A0
        .byte $A0,$90,$A0,$90,$A0,$A0,$A0,$A0,$A0,$A0,$30,$40,$30
        .byte $40,$40,$50,$60,$50,$60,$30,$20,$30
        align 256
Stars1  .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$02,$00,$00
        .byte $00,$00,$00,$02,$00,$00,$00,$00,$00,$00,$02,$00,$00
        .byte $00,$00,$00,$00,$02,$00,$00,$00,$00,$00,$02,$00,$00
        .byte $00,$00,$00,$02,$00,$00,$00,$00,$00,$00,$02,$00,$00
        .byte $00,$00,$02,$00,$00,$00,$00,$02,$00,$00,$00,$00,$02
        .byte $00,$00,$00,$02,$00,$00,$00,$00,$02,$00,$00,$00,$00
        .byte $02,$00,$00,$00,$02,$00,$00,$00,$00,$02,$00,$00,$00
        .byte $00,$02,$00,$00,$00,$02,$00,$00,$00
Stars2  .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$02,$00,$00
        .byte $00,$00,$00,$00,$00,$02,$00,$00,$00,$00,$02,$00,$00
        .byte $00,$00,$00,$00,$02,$00,$00,$00,$00,$00,$00,$00,$02
        .byte $00,$00,$00,$02,$00,$00,$00,$00,$00,$00,$02,$00,$00
        .byte $00,$00,$00,$00,$02,$00,$00,$02,$00,$00,$00,$00,$02
        .byte $00,$00,$00,$00,$00,$02,$00,$00,$02,$00,$00,$00,$00
        .byte $02,$00,$00,$00,$00,$00,$02,$00,$00,$02,$00,$00,$00
        .byte $00,$02,$00,$00,$00,$00,$00,$02,$00
        align 256
; The ship, with room for all the lines above and below it
Blank   ds LINES+1,0
ShipShape .byte 0
        .byte %00011000
        .byte %00011000
        .byte %11000011
        .byte %11011011
        .byte %11111111
        .byte %11111111
        .byte %01111110
        .byte %01111110
        .byte %01111110
        .byte %00111100
        .byte %00111100
        .byte %00100100
        .byte %00100100
        .byte %00111100
        .byte %00111100
        .byte %00111100
        .byte %00011000
        .byte %00011000
        ds LINES+1,0
        .byte $2A, $1E, $44, $46, $46, $98, $9A, $9A, $0C, $0C, $0E, $9C, $9C, $0E, $0E, $0E, $0E
ShipPaint .byte $0E

; The mountains, from their feet up: the sky behind them, their own colour, their outline.
Glow    .byte $1E,$1E,$1C,$2C,$1C,$2C,$2C,$2C,$2A,$2C,$2A,$2A,$3A
        .byte $2A,$3A,$3A,$38,$3A,$38,$38,$38,$38,$46,$38,$46,$46
        .byte $46
Ridge   .byte $00,$60,$60,$60,$62,$60,$62,$62,$62,$64,$62,$64,$64
        .byte $64,$66,$66,$68,$68,$6A,$6A,$0C,$6C,$0E,$0C,$0E,$0E
        align 256
Land0   .byte $F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0,$E0,$E0,$E0,$C0,$C0
        .byte $C0,$80,$80,$80,$00,$00,$00,$00,$00,$00,$00,$00,$00
Land1   .byte $FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FE
        .byte $FC,$FC,$FC,$F8,$F8,$F0,$70,$70,$60,$20,$20,$00,$00
Land2   .byte $FF,$FF,$FF,$FF,$FF,$FF,$FF,$FB,$F9,$F1,$F0,$E0,$C0
        .byte $C0,$C0,$80,$80,$80,$00,$00,$00,$00,$00,$00,$00,$00
Land3   .byte $F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0
        .byte $F0,$F0,$F0,$F0,$F0,$F0,$F0,$F0,$E0,$E0,$E0,$C0,$C0
Land4   .byte $FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FE,$FE,$FC,$FC
        .byte $F8,$F8,$F8,$F0,$F0,$F0,$E0,$E0,$E0,$C0,$80,$80,$00
Land5   .byte $FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$FF,$7F,$7F,$3E
        .byte $3E,$3C,$1C,$1C,$18,$08,$00,$00,$00,$00,$00,$00,$00

        echo "star_catcher:", [$FFFC-*]d, "bytes free"
        org $FFFC
        .word Start
        .word Start

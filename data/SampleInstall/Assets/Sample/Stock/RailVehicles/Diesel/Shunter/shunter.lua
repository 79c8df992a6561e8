-- Sample shunter: keeps the head lamp lit while the engine runs.
function Initialise()
	Call("BeginUpdate")
end

function Update(interval)
end

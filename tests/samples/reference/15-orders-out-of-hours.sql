-- param Opens=08:30:00
-- param Closes=17:45:00
select o.OrderID, o.OrderDate, o.OrderTime, e.FirstName || ' ' || e.LastName
from Orders as o
join Employees as e on e.EmployeeID = o.EmployeeID
where (o.OrderTime < :Opens or o.OrderTime > :Closes) and o.OrderDate >= '2025-01-01' and o.OrderDate < '2026-01-01'
order by o.OrderTime desc, o.OrderID

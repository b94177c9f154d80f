with per_order as (
  select OrderID, sum(Quantity * UnitPrice * (1 - Discount)) as total from "Order Lines" group by OrderID
), per_seller as (
  select o.EmployeeID, count(*) as orders, round(sum(t.total), 2) as turnover
  from Orders as o
  join per_order as t on t.OrderID = o.OrderID
  where strftime('%Y', o.OrderDate) = '2024'
  group by o.EmployeeID
)
select e.FirstName || ' ' || e.LastName as name, s.orders, s.turnover
from per_seller as s
join Employees as e on e.EmployeeID = s.EmployeeID
where s.turnover > 130000 or s.orders < 100
order by s.turnover desc, name
